#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/reports/pageview.h"

/// The preview of a report: its pages, search, zoom, printing and files.
class panCrystal : public forms::Form
{
    Q_OBJECT
public:
    explicit panCrystal(reports::Report report);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void laminar();
    void mostrarLugar();
    void irA();
    void buscar();
    void imprimir();

    reports::Report informe;
    reports::PageView cr1{QStringLiteral("cr1"), informe};
    forms::Label lblPagina{QStringLiteral("lblPagina")};
    forms::TextBox Text1{QStringLiteral("Text1"), 100}; ///< what to look for
    forms::TextBox Text2{QStringLiteral("Text2"), 6};   ///< the page to go to
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprimir..."),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Guardar &PDF..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Guardar C&SV..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("P&lanilla..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Buscar"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Primera{QStringLiteral("Primera"), {}, QStringLiteral("primero")};
    forms::CommandButton Anterior{QStringLiteral("Anterior"), {}, QStringLiteral("anterior")};
    forms::CommandButton Siguiente{QStringLiteral("Siguiente"), {}, QStringLiteral("siguiente")};
    forms::CommandButton Ultima{QStringLiteral("Ultima"), {}, QStringLiteral("ultimo")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< zoom
    forms::Timer Timer1{QStringLiteral("Timer1")};
    int hallada = -1; ///< part of the page where the search stands
};
