#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/cashbook/caja.h"

/// "Informe contable": the movements of some days on paper, of an account or of all.
class panInfCaja : public forms::Form
{
    Q_OBJECT
public:
    panInfCaja();

protected:
    void load() override;

private:
    void imprimir();

    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {caja::todas}};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
