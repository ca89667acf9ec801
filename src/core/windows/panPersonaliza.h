#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The practice's identity: the only reader and writer of the settings of section "Usuario".
class panPersonaliza : public forms::Form
{
    Q_OBJECT
public:
    panPersonaliza();

protected:
    void load() override;

private:
    void aceptar();

    forms::Label Label1{QStringLiteral("Label1"),
                        QStringLiteral("Escriba sus datos particulares para poder personalizar el sistema.")};
    forms::TextBox Text1{QStringLiteral("Text1")}; ///< name
    forms::ComboBox Combo1{QStringLiteral("Combo1"),
                           {QStringLiteral("Dr."), QStringLiteral("Dra."), QStringLiteral("Lic.")},
                           true};
    forms::TextBox Text2{QStringLiteral("Text2")}; ///< enrolment number
    forms::TextBox Text3{QStringLiteral("Text3")}; ///< place of practice
    forms::TextBox Text4{QStringLiteral("Text4")}; ///< address
    forms::TextBox Text5{QStringLiteral("Text5")}; ///< town
    forms::TextBox Text6{QStringLiteral("Text6")}; ///< telephones
    forms::TextBox Text7{QStringLiteral("Text7")}; ///< profession
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
