#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The exit dialogue, which offers a backup. Answers "SI" when the program is to end.
class panSalida : public forms::Form
{
    Q_OBJECT
public:
    panSalida();

protected:
    void load() override;

private:
    void aceptar();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Desea salir de Sanirell! ??")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Realiza &backup de la base de datos ?")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
