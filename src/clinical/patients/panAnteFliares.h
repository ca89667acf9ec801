#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// Picks psychosocial family antecedents from their catalogue, and adds new ones to it. Answers "SI" or "NO".
class panAnteFliares : public forms::Form
{
    Q_OBJECT
public:
    panAnteFliares();

    QStringList marcados() const;

protected:
    void load() override;

private:
    void llenar();
    void aceptar();
    void agregar();

    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "Seleccione la casilla de verificación de los antecedentes familiares que deseee ingresar.")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Nuevo..."),
                                  QStringLiteral("agregar")};
};
