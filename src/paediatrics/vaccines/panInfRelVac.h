#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Información Relacionada": what the plan tells of a dose.
class panInfRelVac : public forms::Form
{
    Q_OBJECT
public:
    explicit panInfRelVac(const QString &texto);

private:
    forms::MemoBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
