#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// A prompt for the surname and names of a patient to look for. Answers "SI" or "NO".
class panSeekPaciente : public forms::Form
{
    Q_OBJECT
public:
    panSeekPaciente();

    QString texto() const { return Text1.text(); }

private:
    forms::Label Label1{QStringLiteral("Label1"),
                        QStringLiteral("Buscar por Apellido y nombres el siguiente paciente :")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
