#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Resumen de antecedentes familiares": shows the list given to it.
class panResFliares : public forms::Form
{
    Q_OBJECT
public:
    explicit panResFliares(const QStringList &antecedentes);

private:
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral("El listado de abajo resume la información patológica familiar del paciente.")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
};
