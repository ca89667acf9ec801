#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Mensajes": a notice whose text the caller sets in `mensajero`.
class mens : public forms::Form
{
    Q_OBJECT
public:
    mens();

    forms::Label mensajero{QStringLiteral("mensajero")};

private:
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
};

/// "Pregunta": a question whose text the caller sets in `pregun`. Answers "SI" or "NO".
class preg : public forms::Form
{
    Q_OBJECT
public:
    preg();

    forms::Label pregun{QStringLiteral("pregun")};

private:
    forms::CommandButton Command3d1{QStringLiteral("Command3d1"), QStringLiteral("&Sí"),
                                    QStringLiteral("aceptar")};
    forms::CommandButton Command3d2{QStringLiteral("Command3d2"), QStringLiteral("&No"),
                                    QStringLiteral("cancelar")};
};
