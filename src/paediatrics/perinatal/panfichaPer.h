#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Impresión de ficha perinatal": prints the blank form that is filled in by hand in the delivery room.
class panfichaPer : public forms::Form
{
    Q_OBJECT
public:
    panfichaPer();

private:
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral("Esta ficha sirve para capturar en forma escrita la evolución del paciente durante el "
                       "período perinatal y que luego sería competada en el sistema.")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
};
