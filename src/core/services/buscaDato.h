#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Buscar": asks for a text to look for in one column and where the search starts. Answers "SI" or "NO".
class buscaDato : public forms::Form
{
    Q_OBJECT
public:
    enum class Desde { Principio, Final, Aqui };

    buscaDato();

    /// The trimmed text as a LIKE pattern; anything may follow it, and precede it on request.
    QString patron() const;
    Desde desde() const;

protected:
    void activate() override;

private:
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CheckBox check3d1{QStringLiteral("check3d1"),
                             QStringLiteral("Buscar en &cualquier parte del dato")};
    forms::ControlArray<forms::OptionButton> option3d1{QStringLiteral("option3d1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
