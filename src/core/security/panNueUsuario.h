#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo Usuario del sistema": name, level, type and password of an account to be created. Answers "SI" or
/// "NO".
class panNueUsuario : public forms::Form
{
    Q_OBJECT
public:
    panNueUsuario();

    QString nombre() const { return Text1.text(); }
    int nivel() const;
    QString tipo() const; ///< its letter
    QString clave() const { return Text2.text(); }

protected:
    void load() override;
    void activate() override;

private:
    forms::TextBox *equivocado();
    void aceptar();

    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::TextBox Text2{QStringLiteral("Text2"), 60};
    forms::TextBox Text3{QStringLiteral("Text3"), 60};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
