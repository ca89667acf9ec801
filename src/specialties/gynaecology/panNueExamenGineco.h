#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo Examen Ginecológico": the day and the kind of an examination. Answers the kind, or "NO".
class panNueExamenGineco : public forms::Form
{
    Q_OBJECT
public:
    panNueExamenGineco();

    basic::Date fecha() const { return dt1.value(); }

protected:
    void escape() override { answer(QStringLiteral("NO")); }

private:
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    QString clase_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
