#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nueva medida": takes a weighing of the patient whose number is the tag and stores it. Answers "SI" when
/// it was stored, else "NO".
class panNuePeso : public forms::Form
{
    Q_OBJECT
public:
    panNuePeso();

protected:
    void escape() override { answer(QStringLiteral("NO")); }

private:
    void aceptar();

    forms::DTPicker DTPicker1{QStringLiteral("DTPicker1")};
    forms::TextBox Text1{QStringLiteral("Text1"), 10};
    forms::Label lblAyuda{QStringLiteral("lblAyuda")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
