#include "practice/cashbook/panCaja.h"

#include "core/reports/informes.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "practice/cashbook/panCuentas.h"
#include "practice/cashbook/panFilCaja.h"
#include "practice/cashbook/panGastos.h"
#include "practice/cashbook/panInfCaja.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

template <class Window>
void abrir()
{
    Window ventana;
    ventana.showModal();
}

} // namespace

panCaja::panCaja()
    : Tabla(u"panCaja"_s, u"Pantalla de gastos y entradas"_s,
            {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 90},
             {u"Cuenta"_s, u"Cuenta"_s, {}, 190},
             {u"Detalle"_s, u"Detalle"_s, {}, 330},
             {u"Entrada"_s, u"Entrada"_s, u"currency"_s, 120},
             {u"Salida"_s, u"Salida"_s, u"currency"_s, 120}})
{
    setSource(consulta_.sql());
    setContents(this, Column{Expanding(DBGrid1),
                             Row{Stretch(), Fields{{u"Total de entradas :"_s, lblEntradas}}, Space(24),
                                 Fields{{u"Total de salidas :"_s, lblSalidas}}},
                             ordenes()});
    resize(980, 560);
}

Item panCaja::ordenes()
{
    return Row{
        command(u"Command1"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
        rowCommand(u"Command5"_s, u"&Borrar"_s, u"borrar"_s, [this] { borrar(); }),
        rowCommand(u"Command2"_s, u"&Modificar"_s, u"editar"_s, [this] { modificar(); }),
        command(u"Command3"_s, u"&Cuentas"_s, u"ver"_s, [] { abrir<panCuentas>(); }),
        command(u"Command4"_s, u"&Informes"_s, u"imprimir"_s, [] { abrir<panInfCaja>(); }),
        command(u"Command6"_s, u"&Filtrar"_s, u"buscar"_s, [this] { filtrar(); }),
        rowCommand(u"Command8"_s, u"&Recibo"_s, u"imprimir"_s, [this] { recibo(); }),
        Stretch(),
        closes(u"Command7"_s, u"&Salir"_s),
    };
}

void panCaja::rowShown()
{
    sumar();
}

/// Without movements the figures stay.
void panCaja::sumar()
{
    const auto sumas = consulta_.sumas();
    if (!sumas)
        return;
    lblEntradas.setCaption(basic::format(sumas->entradas, u"currency"));
    lblSalidas.setCaption(basic::format(sumas->salidas, u"currency"));
}

QString panCaja::filaActual()
{
    return u"idCaja = "_s + Data1.recordset()[u"idCaja"].text();
}

void panCaja::nuevo()
{
    panGastos captura;
    captura.showModal();
    if (captura.ultimo())
        Data1.refresh(u"idCaja = %1"_s.arg(*captura.ultimo()));
}

void panCaja::modificar()
{
    const QString fila = filaActual();
    panGastos captura;
    captura.setModo(u"select * from caja where "_s + fila);
    captura.showModal();
    Data1.refresh(fila);
}

void panCaja::borrar()
{
    if (askBox(u"Borra el movimiento seleccionado"_s, u"Borrando Movimiento de Caja"_s, Answer::No))
        Data1.deleteRow();
}

/// The filter stays until the window is closed, whatever it finds.
void panCaja::filtrar()
{
    panFilCaja filtro;
    filtro.showModal();
    if (filtro.tag() != u"SI")
        return;
    consulta_ = filtro.consulta();
    setSource(consulta_.sql());
    refresh();
}

void panCaja::recibo()
{
    informes::muestra(u"recibo.rpt"_s, u"{Caja.%1"_s.arg(filaActual()).replace(u" ="_s, u"} ="_s));
}

#include "moc_panCaja.cpp"
