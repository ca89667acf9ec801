#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Ingreso de dato": one value, or a pair of them, that a caller asks for. The caller sets the labels and
/// the entries of the combo. Answers "SI" or "NO".
class panIdato : public forms::Form
{
    Q_OBJECT
public:
    panIdato();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Reactivo Nº")};
    forms::Label Label2{QStringLiteral("Label2"), QStringLiteral("Resultado :")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {}, true};

private:
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
