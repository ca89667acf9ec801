#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Error en la base de datos": says what may have happened to the practice's file and offers to mend it.
/// After that it stays, whatever came of it.
class panErrorBase : public forms::Form
{
    Q_OBJECT
public:
    panErrorBase();

private:
    void reparar();

    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label Label2{QStringLiteral("Label2"), QStringLiteral("Las posibles causas son :")};
    forms::Label Label3{QStringLiteral("Label3")};
    forms::Label Label4{QStringLiteral("Label4")};
    forms::Label Label5{QStringLiteral("Label5")};
    forms::CommandButton Command1{QStringLiteral("Command1"),
                                  QStringLiteral("&Intentar reparar la base de datos..."),
                                  QStringLiteral("configurar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Salir"),
                                  QStringLiteral("salir")};
};

/// "Error al abrir base de datos": a plain notice.
class panErrorB : public forms::Form
{
    Q_OBJECT
public:
    panErrorB();

private:
    forms::Label Label1{QStringLiteral("Label1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
