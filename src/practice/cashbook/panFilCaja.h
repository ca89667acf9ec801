#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/cashbook/caja.h"

/// "Filtro de Movimientos": which movements the cashbook shows. Answers "SI" or "NO".
class panFilCaja : public forms::Form
{
    Q_OBJECT
public:
    panFilCaja();

    caja::Consulta consulta() const;

protected:
    void load() override;

private:
    void mostrar();

    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::DTPicker mFechaHasta{QStringLiteral("mFechaHasta")};
    forms::ComboBox mOrden{QStringLiteral("mOrden"), {QStringLiteral("Fecha"), QStringLiteral("Cuenta")}};
    forms::ComboBox mCuenta{QStringLiteral("mCuenta"), {caja::todas, QStringLiteral("Cobranza")}};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Mostrar"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
