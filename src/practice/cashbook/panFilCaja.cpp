#include "practice/cashbook/panFilCaja.h"

#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panFilCaja::panFilCaja() : Form(u"panFilCaja"_s)
{
    setWindowTitle(u"Filtro de Movimientos"_s);
    Command1.setDefault(true);
    setContents(this,
                Column{
                    Row{Fields{{u"&Desde :"_s, mFecha}}, Fields{{u"&Hasta :"_s, mFechaHasta}}, Stretch()},
                    Fields{{u"&Ordenar :"_s, mOrden}, {u"&Ver :"_s, mCuenta}},
                    Stretch(),
                    Row{Stretch(), Command1, Command2},
                });
    connect(&Command1, &QPushButton::clicked, this, &panFilCaja::mostrar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panFilCaja::load()
{
    caja::agregarCuentas(mCuenta);
    mOrden.setCurrentIndex(0);
    mCuenta.setCurrentIndex(0);
}

caja::Consulta panFilCaja::consulta() const
{
    return caja::movimientos(mFecha.value(), mFechaHasta.value(), mCuenta.value(), mOrden.value());
}

void panFilCaja::mostrar()
{
    if (!consulta().sumas())
        MODULE11::Aviso(u"No se encontró información de la cuenta %1 en el día %2"_s.arg(
            mCuenta.value(), basic::dateText(mFecha.value())));
    answer(u"SI"_s);
}

#include "moc_panFilCaja.cpp"
