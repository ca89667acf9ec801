#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Administrador de Alarmas": the place of a tree of alarms. It has no behaviour of its own, so its commands
/// are disabled.
class panAdmAlarmas : public forms::Form
{
    Q_OBJECT
public:
    panAdmAlarmas();

private:
    forms::TreeView TreeView1{QStringLiteral("TreeView1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Ingresar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Eliminar"),
                                  QStringLiteral("borrar")};
};
