#pragma once

#include "figures/prevalencia.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Gráficos Prevalentes": what prevails among the visits or patients selected.
class panPrevalencias : public forms::Form
{
    Q_OBJECT
public:
    panPrevalencias();

private:
    void llenarListas();
    void disponer();
    void graficar();
    std::optional<figures::Seleccion> seleccion() const;
    std::optional<figures::Figura> figura(const figures::Seleccion &seleccion);
    void mostrarReferencias(const figures::Figura &figura);
    void listar(int porcion);

    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::ControlArray<forms::Label> Label4{QStringLiteral("Label4")};
    forms::ControlArray<forms::Label> Shape1{QStringLiteral("Shape1")}; ///< the colour of each reference
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::ComboBox Combo3{QStringLiteral("Combo3")};
    forms::ComboBox Combo4{QStringLiteral("Combo4")};
    forms::ComboBox Combo5{QStringLiteral("Combo5")};
    figures::Grafico Graph1{QStringLiteral("Graph1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Graficar"),
                                  QStringLiteral("estadisticas")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("G&uardar..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    std::function<QString(int porcion)> visitasDe_; ///< the query behind a slice of the chart that is shown
};
