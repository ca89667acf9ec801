#pragma once

#include "figures/catalogo.h"
#include "figures/grafico.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Gráfico cuántico demostrativo anual": how often the visits of a year name an item, month by month.
class panGraficos : public forms::Form
{
    Q_OBJECT
public:
    panGraficos();

protected:
    void load() override;

private:
    void llenarItems();
    void mostrar();
    void listar(int mes);
    QString sexo() const;

    forms::ComboBox Combo5{QStringLiteral("Combo5")};           ///< where from
    forms::ComboBox Combo1{QStringLiteral("Combo1")};           ///< the item
    forms::ComboBox Combo2{QStringLiteral("Combo2")};           ///< ages
    forms::ComboBox Combo4{QStringLiteral("Combo4")};           ///< sex
    forms::ComboBox Combo3{QStringLiteral("Combo3")};           ///< year
    forms::ComboBox Combo6{QStringLiteral("Combo6"), {}, true}; ///< kind of chart
    figures::Grafico Graph1{QStringLiteral("Graph1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Mostrar"),
                                  QStringLiteral("estadisticas")};
    forms::CommandButton Command2{QStringLiteral("Command2"), {}, QStringLiteral("buscar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Guardar..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    struct Mostrado {
        figures::Nombrado que;
        QString item, sexo;
        int anio;
    };
    std::optional<Mostrado> mostrado_;
};
