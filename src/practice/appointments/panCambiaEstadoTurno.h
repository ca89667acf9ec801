#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Cambiar estado de un turno": asks for one of the states. Answers "SI" or "NO".
class panCambiaEstadoTurno : public forms::Form
{
    Q_OBJECT
public:
    panCambiaEstadoTurno();

    QString estado() const { return Combo3.value(); }

protected:
    void load() override;

private:
    void aceptar();

    forms::ComboBox Combo3{QStringLiteral("Combo3")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
