#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo Registro Cardiológico": the day of a new heart record. Answers "SI" or "NO".
class panNueRegCardio : public forms::Form
{
    Q_OBJECT
public:
    panNueRegCardio();
    basic::Date fecha() const { return DTPicker1.value(); }

protected:
    void escape() override { answer(QStringLiteral("NO")); }

private:
    forms::DTPicker DTPicker1{QStringLiteral("DTPicker1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
