#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/cashbook/caja.h"

/// "Cargar un movimiento a la Caja": new movements, one after another until it is closed, or the correction
/// of one.
class panGastos : public forms::Form
{
    Q_OBJECT
public:
    panGastos();

    /// "NEW", or the query that finds the movement to correct.
    void setModo(const QString &modo) { modo_ = modo; }
    /// The key of the last movement that was added.
    std::optional<qint64> ultimo() const { return ultimo_; }

protected:
    void load() override;

private:
    bool esNuevo() const { return modo_ == u"NEW"; }
    void mostrarMovimiento();
    void elegirCuenta();
    void dejarImporte();
    bool completo();
    void aceptar();
    void agregar();
    void corregir();
    caja::Movimiento movimiento() const;

    QString modo_ = QStringLiteral("NEW");
    std::optional<qint64> ultimo_;

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Nuevo movimiento contable.")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::OptionButton> mTipo{QStringLiteral("mTipo")};
    forms::ComboBox mCuenta{QStringLiteral("mCuenta"), {}, true};
    forms::TextBox mMonto{QStringLiteral("mMonto"), 15};
    forms::TextBox mDetalle{QStringLiteral("mDetalle"), 255};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("C&uentas..."),
                                  QStringLiteral("ver")};
};
