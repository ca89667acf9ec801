#include "practice/cashbook/panGastos.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "practice/cashbook/panCuentas.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { salida, entrada };
constexpr int largoDeCuenta = 50;

} // namespace

panGastos::panGastos() : Form(u"panGastos"_s)
{
    setWindowTitle(u"Cargar un movimiento a la Caja"_s);
    mTipo.add(salida, u"&Salida"_s).setChecked(true);
    mTipo.add(entrada, u"&Entrada"_s);
    mCuenta.lineEdit()->setMaxLength(largoDeCuenta);
    mCuenta.setMinimumWidth(260);
    mMonto.setText(u"0.00"_s);
    mMonto.setFixedWidth(140);
    mMonto.setAlignment(Qt::AlignRight);
    mDetalle.setText(u"-"_s);
    Command1.setDefault(true);
    setContents(this,
                Column{
                    Label1,
                    Fields{{u"&Fecha :"_s, Row{mFecha, Space(16), mTipo(salida), mTipo(entrada), Stretch()}},
                           {u"Cuen&ta :"_s, Row{Expanding(mCuenta), Command3}},
                           {u"&Importe :"_s, Row{mMonto, Stretch()}},
                           {u"C&oncepto :"_s, mDetalle}},
                    Row{Stretch(), Command1, Command2},
                });
    setMinimumWidth(560);
    connect(&mMonto, &QLineEdit::editingFinished, this, &panGastos::dejarImporte);
    connect(&Command1, &QPushButton::clicked, this, &panGastos::aceptar);
    connect(&Command2, &QPushButton::clicked, this, &panGastos::unload);
    connect(&Command3, &QPushButton::clicked, this, &panGastos::elegirCuenta);
}

void panGastos::load()
{
    caja::agregarCuentas(mCuenta);
    mCuenta.setValue({});
    if (!esNuevo())
        mostrarMovimiento();
}

void panGastos::mostrarMovimiento()
{
    setWindowTitle(u"Modificar Movimiento."_s);
    Label1.setCaption(u"Corrección de un movimiento contable."_s);
    dao::Recordset fila = MODULE11::BaseDatos.openRecordset(modo_);
    if (fila.eof())
        return;
    const caja::Movimiento guardado = caja::leer(fila);
    mFecha.setValue(guardado.fecha);
    mTipo(guardado.entra ? entrada : salida).setChecked(true);
    mCuenta.setValue(guardado.cuenta);
    mMonto.setText(caja::enTexto(guardado.importe));
    mDetalle.setText(guardado.detalle);
}

void panGastos::elegirCuenta()
{
    panCuentas plan;
    plan.showModal();
    const QString elegida = plan.tag();
    const QString escrita = elegida.isEmpty() ? mCuenta.value() : elegida;
    mCuenta.clear(); // the plan may be another by now
    caja::agregarCuentas(mCuenta);
    mCuenta.setValue(escrita);
}

/// What is no amount is not left.
void panGastos::dejarImporte()
{
    if (!basic::isNumeric(mMonto.text()))
        markWrong(mMonto, u"El importe no es un número"_s);
}

bool panGastos::completo()
{
    const auto falta = [](QWidget &campo, const QString &motivo) {
        MODULE11::MuestraError(motivo);
        markWrong(campo, motivo);
        return false;
    };
    if (mCuenta.value().trimmed().isEmpty())
        return falta(mCuenta, u"Debe seleccionar una cuenta"_s);
    if (caja::importe(mMonto.text()) == basic::Currency())
        return falta(mMonto, u"Debe ingresar una cifra en el importe"_s);
    return true;
}

void panGastos::aceptar()
{
    if (!completo() || !askBox(u"Asienta el movimiento"_s, u"Nuevo Movimiento"_s))
        return;
    if (esNuevo())
        agregar();
    else
        corregir();
}

caja::Movimiento panGastos::movimiento() const
{
    return {mFecha.value(), mCuenta.value(), mDetalle.text(), mTipo(entrada).isChecked(),
            caja::importe(mMonto.text())};
}

/// A session of entries is one dialogue: it stays for the next.
void panGastos::agregar()
{
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Caja"_s);
    filas.addNew();
    caja::escribir(filas, movimiento());
    filas.update();
    filas.setBookmark(filas.lastModified());
    ultimo_ = filas[u"idCaja"].integer();
    mCuenta.setValue({});
    mDetalle.setText(u"-"_s);
    mMonto.setText(u"0"_s);
    mCuenta.setFocus();
}

void panGastos::corregir()
{
    dao::Recordset fila = MODULE11::BaseDatos.openRecordset(modo_);
    if (fila.eof()) {
        MODULE11::MuestraError(u"El movimiento ya no está en la caja."_s);
        return;
    }
    fila.edit([&] { caja::escribir(fila, movimiento()); });
    unload();
}

#include "moc_panGastos.cpp"
