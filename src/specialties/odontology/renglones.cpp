#include "specialties/odontology/renglones.h"

#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "specialties/odontology/PannuePractico.h"
#include "specialties/odontology/presupuestos.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace presupuestos
{

namespace
{

constexpr int anchoDelTotal = 130;

} // namespace

Renglones::Renglones(const QString &formato) : formato_(formato)
{
    DBGrid3.setSource(Data3,
                      {{.heading = u"Práctica"_s, .field = u"detalle"_s, .width = 300, .fixed = true},
                       {.heading = u"Cantidad"_s, .field = u"cantidad"_s, .width = 80},
                       {.heading = u"Precio"_s, .field = u"precio"_s, .pattern = u"currency"_s, .width = 110},
                       {.heading = u"Subtotal"_s,
                        .field = u"subtotal"_s,
                        .pattern = u"currency"_s,
                        .width = 110,
                        .fixed = true}});
    DBGrid3.setEditable(true);
    Text5.setReadOnly(true);
    Text5.setAlignment(Qt::AlignRight);
    Text5.setFixedWidth(anchoDelTotal);
    connect(&Data3, &Data::cellWritten, this, &Renglones::recalcular);
}

Item Renglones::grilla()
{
    return DBGrid3;
}

Item Renglones::renglonDelTotal()
{
    return Fields{{u"Total:"_s, Text5}};
}

void Renglones::mostrar(std::optional<qint64> presupuesto)
{
    presupuesto_ = presupuesto;
    Data3.setRecordSource(renglones(presupuesto));
    Data3.refresh();
    mostrarTotal();
}

void Renglones::releer()
{
    mostrar(presupuesto_);
    if (Data3.hasRow())
        Data3.change([](dao::Recordset &filas) { filas.moveLast(); });
}

void Renglones::mostrarTotal()
{
    Text5.setText(presupuesto_ && Data3.hasRow() ? basic::format(total(*presupuesto_), formato_) : u"0"_s);
}

/// A quantity or a price that no line can have gives way to the one that the line had.
void Renglones::recalcular()
{
    dao::Recordset &fila = Data3.recordset();
    const double cantidad = fila[u"cantidad"].number();
    const basic::Currency precio = fila[u"precio"].value().currency();
    const auto importe = subtotal(cantidad, precio);
    if (importe && cantidad > 0 && precio >= basic::Currency()) {
        Data3.set(u"subtotal"_s, *importe);
        mostrarTotal();
        return;
    }
    const double antes = fila[u"subtotal"].number();
    Data3.change([&](dao::Recordset &filas) {
        filas.edit([&] {
            if (precio < basic::Currency())
                filas[u"precio"] = basic::Currency::fromDouble(antes / cantidad);
            else
                filas[u"cantidad"] = precio > basic::Currency() ? antes / precio.toDouble() : 1.0;
        });
    });
    MODULE11::MuestraError(u"La cantidad debe ser mayor que cero y el precio, un importe."_s);
}

void Renglones::agregar(const QString &quien)
{
    PannuePractico lista(presupuesto_, [this] { releer(); });
    lista.setTag(quien);
    lista.showModal();
    releer(); // a practice taken off the list is gone from under its lines
}

void Renglones::quitar()
{
    if (!Data3.hasRow()) {
        MODULE11::MuestraError(u"Seleccione una Practica"_s);
        return;
    }
    if (!MODULE11::PreguntaSiBorra(u"Esta seguro que quiere borrar la practica "_s +
                                   Data3.recordset()[u"detalle"].text() + u"?"_s))
        return;
    Data3.deleteRow();
    mostrarTotal();
}

} // namespace presupuestos

#include "moc_renglones.cpp"
