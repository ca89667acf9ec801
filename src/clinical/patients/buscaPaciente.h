#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Buscar Paciente": a name's beginning or a number. Answers "PORAP" or "PORHI".
class buscaPaciente : public forms::Form
{
    Q_OBJECT
public:
    buscaPaciente();

    QString texto() const { return Text1.text(); }
    /// The trimmed text as a LIKE pattern; anything may follow it, and precede it on request.
    QString patron() const;
    int desde() const; ///< 0 from the start, 1 from the end, 2 from here on

protected:
    void activate() override;

private:
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CheckBox Check3d1{QStringLiteral("Check3d1"),
                             QStringLiteral("Buscar en cualquier &parte del nombre")};
    forms::ControlArray<forms::OptionButton> option3d1{QStringLiteral("option3d1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Por &apellido"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Por &número"),
                                  QStringLiteral("buscar")};
};
