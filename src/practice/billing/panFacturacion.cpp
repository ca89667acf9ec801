#include "practice/billing/panFacturacion.h"

#include "core/reports/informes.h"
#include "core/security/niveles.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/progress.h"
#include "practice/billing/panFacLote.h"
#include "practice/billing/panMuesDetFactura.h"
#include "practice/tariffs/importe.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;
using MODULE11::BuscaCampo;

namespace
{

const QString informe = u"facturacion1.rpt"_s;
const QString facturaCon = u"{Facturacion.idFacturacion} = "_s;
const QString importe = u"#,##0.00"_s, fecha = u"dd/mm/yyyy"_s;

/// The sum that a query gives as "Total"; "0" where nothing is summed.
QString total(const QString &sql)
{
    const basic::Value suma = BuscaCampo(sql, u"Total");
    return suma.isNull() ? u"0"_s : importes::enMoneda(suma);
}

RowLook aspectoDeMarcada(const basic::Value &marca)
{
    return marca.isBlank() ? RowLook() : RowLook::standingOut();
}

} // namespace

panFacturacion::panFacturacion() : Form(u"panFacturacion"_s)
{
    setWindowTitle(u"Facturación de prestaciones"_s);
    for (TextBox *suma : {&Text1, &Text2, &Text3}) {
        suma->setReadOnly(true);
        suma->setFocusPolicy(Qt::NoFocus);
        suma->setAlignment(Qt::AlignRight);
        suma->setMaximumWidth(160);
    }
    DBGrid1.setSource(Data1, {{u"TmpCheck"_s, u"TmpCheck"_s, {}, 30},
                              {u"Fecha"_s, u"Fecha"_s, fecha, 84},
                              {u"Nombre del Paciente"_s, u"Nombre del Paciente"_s, {}, 200},
                              {u"Nro Orden"_s, u"NroOrden"_s, {}, 100},
                              {u"Diagnostico 1"_s, u"Diagnostico 1"_s, {}, 180},
                              {u"Monto"_s, u"Monto"_s, importe, 90},
                              {u"idPrestacion"_s, u"idPrestacion"_s, {}, 90},
                              {u"StatusOrden"_s, u"StatusOrden"_s, {}, 100}});
    DBGrid1.setRowLook(u"TmpCheck"_s, aspectoDeMarcada);
    DBGrid2.setSource(Data2, {{u"Numero"_s, u"Numero"_s, {}, 130},
                              {u"Fecha"_s, u"Fecha"_s, fecha, 84},
                              {u"Total"_s, u"Total"_s, importe, 110}});
    DBGrid3.setSource(Data3, panMuesDetFactura::columnas());
    DBGrid4.setSource(Data4, {{u"Numero"_s, u"Numero"_s, {}, 130},
                              {u"Fecha"_s, u"Fecha"_s, fecha, 84},
                              {u"Obra Social"_s, u"Descripcion"_s, {}, 260},
                              {u"Total"_s, u"Total"_s, importe, 110}});
    setContents(this,
                Column{
                    Row{Fields{{u"&Prestador :"_s, cbPrestador}}, Fields{{u"O&bra social :"_s, cbObrasoc}},
                        Fields{{u"D&esde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Stretch()},
                    Expanding(Tabs(SSTab1, {{u"Prestaciones PENDIENTES"_s, pendientes()},
                                            {u"Prestaciones EMITIDAS SIN COBRAR"_s, emitidas()},
                                            {u"Historico"_s, historico()}})),
                    Row{Stretch(), Command6},
                });
    resize(1060, 620);
}

Item panFacturacion::pendientes()
{
    auto *nota = new QLabel(u"Utilice la barra espaciadora para marcar prestaciones."_s);
    return Column{Expanding(DBGrid1), nota,
                  Row{Command1, Command2, Stretch(), Fields{{u"Total :"_s, Text1}}}};
}

Item panFacturacion::emitidas()
{
    return Column{Expanding(Row{Expanding(DBGrid2, 2), Expanding(DBGrid3, 3)}),
                  Row{Command3, Check1, Command7, Stretch(), Fields{{u"Importe Total Factura :"_s, Text2}}}};
}

Item panFacturacion::historico()
{
    txAno.setMaximumWidth(60);
    return Column{Row{Fields{{u"&Año :"_s, txAno}}, UpDown1, Stretch()}, Expanding(DBGrid4),
                  Row{Command4, Command5, Check2, Stretch(), Fields{{u"Total x Periodo :"_s, Text3}}}};
}

/// The box with which a refused right is told comes once, at the opening; what it stands for is disabled.
void panFacturacion::load()
{
    services::agregarConClave(cbPrestador, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    services::agregarConClave(cbObrasoc, u"Select * from [Obra Social] order by Descripcion"_s,
                              u"Descripcion", u"idObraSocial");
    cbObrasoc.setCurrentIndex(-1);
    elegirPrestador();
    txAno.setText(QString::number(basic::today().date().year()));
    if (!MODULE11::VerificaNivel(u"AgregarFacturacion"_s))
        for (CommandButton *boton : {&Command1, &Command2, &Command3})
            boton->setEnabled(false);
    conectar();
    refrescar();
}

void panFacturacion::elegirPrestador()
{
    if (MODULE11::TipoUsuario == u"M") {
        cbPrestador.setValue(MODULE11::DrActual);
        cbPrestador.setEnabled(false);
    } else {
        cbPrestador.setCurrentIndex(cbPrestador.count() > 0 ? 0 : -1);
    }
}

void panFacturacion::conectar()
{
    for (ComboBox *filtro : {&cbPrestador, &cbObrasoc})
        connect(filtro, &QComboBox::currentIndexChanged, this, &panFacturacion::refrescar);
    for (DTPicker *dia : {&dt1, &dt2})
        connect(dia, &DTPicker::dateChanged, this, &panFacturacion::refrescar);
    connect(&txAno, &QLineEdit::textChanged, this, &panFacturacion::refrescar);
    connect(&UpDown1, &UpDown::stepped, this,
            [this](int pasos) { txAno.setText(QString::number(txAno.text().toInt() + pasos)); });
    connect(&Data2, &Data::reposition, this, &panFacturacion::mostrarDetalle);
    connect(&DBGrid4, &DBGrid::accepted, this, &panFacturacion::verDetalle);
    DBGrid1.installEventFilter(this);
}

facturacion::Partes panFacturacion::partes() const
{
    return {cbPrestador.currentData().toLongLong(), cbObrasoc.currentData().toLongLong(), cbPrestador.value(),
            cbObrasoc.value()};
}

/// A date that is being typed is none yet.
void panFacturacion::refrescar()
{
    if (!dt1.readable() || !dt2.readable())
        return;
    refrescarPendientes();
    Data2.setRecordSource(facturacion::sinCobrar(partes(), dt1.value(), dt2.value()));
    Data2.refresh();
    refrescarHistorico();
}

void panFacturacion::refrescarPendientes()
{
    Data1.setRecordSource(facturacion::pendientes(partes(), dt1.value(), dt2.value()));
    Data1.refresh();
    Text1.setText(total(facturacion::sumaDePendientes(partes(), dt1.value(), dt2.value())));
}

void panFacturacion::refrescarHistorico()
{
    const int anio = txAno.text().toInt();
    Data4.setRecordSource(facturacion::cobradas(partes(), anio));
    Data4.refresh();
    Text3.setText(total(facturacion::sumaDeCobradas(partes(), anio)));
}

void panFacturacion::mostrarDetalle()
{
    const bool hay = Data2.hasRow();
    Data3.setRecordSource(facturacion::detalle(hay ? Data2.recordset()[u"idFacturacion"].integer() : 0));
    Data3.refresh();
    Text2.setText(hay ? importes::enMoneda(Data2.recordset()[u"Total"]) : u"0"_s);
}

bool panFacturacion::eventFilter(QObject *control, QEvent *evento)
{
    if (control != &DBGrid1 || evento->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent *>(evento)->key() != Qt::Key_Space)
        return false;
    marcar();
    return true;
}

/// False, once told, when another station has billed the current visit meanwhile.
bool panFacturacion::sigueSinFacturar()
{
    if (!Data1.recordset()[u"Facturada"].truth())
        return true;
    MODULE11::Aviso(u"Esta prestación ya está en una factura."_s);
    refrescar();
    return false;
}

/// The cursor drops to the next row, so that a column of visits is marked by one key held down.
void panFacturacion::marcar()
{
    if (!Data1.hasRow() || !sigueSinFacturar())
        return;
    Data1.change(facturacion::alternaMarca);
    DBGrid1.viewport()->update();
    QKeyEvent abajo(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&DBGrid1, &abajo);
}

void panFacturacion::facturar()
{
    if (!Data1.hasRow()) {
        msgBox(u"Error, no hay prestaciones pendientes de facturación!"_s, Icon::Critical, u"Error"_s);
        return;
    }
    panFacLote lote(facturacion::proximoNumero(BaseDatos, partes().idPrestador));
    lote.showModal();
    if (lote.tag() != u"SI")
        return;
    std::optional<qint64> emitida;
    {
        Progress avance(u"Facturando prestaciones..."_s);
        emitida = facturacion::factura(BaseDatos, partes(), lote.emision(),
                                       [&avance](qint64 hechas, qint64 de) { avance.tell(hechas, de); });
    }
    refrescar();
    if (!emitida)
        MODULE11::MuestraError(u"Error, no existen prestaciones marcadas a facturar!!"_s);
    else if (lote.emiteImpresion())
        imprimirEmitida(*emitida);
}

void panFacturacion::imprimirEmitida(qint64 idFacturacion)
{
    msgBox(u"Registros guardados... se procede a imprimir!"_s, Icon::Information, u"Listo!"_s);
    informes::muestra(informe, facturaCon + QString::number(idFacturacion));
}

void panFacturacion::cambiarImporte()
{
    if (!Data1.hasRow() || !sigueSinFacturar())
        return;
    const auto escrito = inputBox(u"Ingrese el importe a facturar:"_s, u"Cambio de precio"_s,
                                  importes::paraEditar(Data1.recordset()[u"Monto"]));
    const auto nuevo = importes::escrito(escrito.value_or(QString()));
    if (!nuevo)
        return;
    Data1.set(u"Monto"_s, *nuevo);
    Text1.setText(total(facturacion::sumaDePendientes(partes(), dt1.value(), dt2.value())));
}

void panFacturacion::cobrar()
{
    if (!Data2.hasRow())
        return;
    Data2.updateRecord();
    if (!MODULE11::Pregunta(u"Atención : Desea marcar ésta facturación como cobrada?"_s))
        return;
    if (!facturacion::cobra(BaseDatos, Data2.recordset()[u"idFacturacion"].integer(), Check1.isChecked(),
                            basic::today()))
        MODULE11::Aviso(u"Esta factura ya estaba cobrada."_s);
    refrescar();
}

void panFacturacion::verDetalle()
{
    if (!Data4.hasRow()) {
        MODULE11::MuestraError(u"Error, debe seleccionar una facturación!"_s);
        return;
    }
    panMuesDetFactura(Data4.recordset()[u"idFacturacion"].integer()).showModal();
}

void panFacturacion::imprimir()
{
    const facturacion::Partes elegidas = partes();
    if (cbPrestador.currentIndex() < 0) {
        MODULE11::MuestraError(u"Seleccione un prestador!"_s);
        return;
    }
    if (cbObrasoc.currentIndex() < 0) {
        MODULE11::MuestraError(u"Seleccione una obra social!"_s);
        return;
    }
    if (Check2.isChecked() && !Data4.hasRow()) {
        MODULE11::MuestraError(u"Error, debe seleccionar una facturación!"_s);
        return;
    }
    const QString una = Check2.isChecked()
                            ? facturaCon + QString::number(Data4.recordset()[u"idFacturacion"].integer())
                            : u"TRUE "_s;
    informes::muestra(
        informe,
        u"{Facturacion.Cobrada} = TRUE AND {Facturacion.idPrestador} = %1 AND Year({Facturacion.Fecha}) = "
        u"%2 AND {Facturacion.idObraSocial} = %3 AND %4"_s.arg(QString::number(elegidas.idPrestador),
                                                               QString::number(txAno.text().toInt()),
                                                               QString::number(elegidas.idObraSocial), una));
}

/// Of the professional, whatever the coverage: who owes, and since when.
void panFacturacion::verDeuda()
{
    informes::muestra(u"deuda.rpt"_s, u"{Facturacion.Cobrada} = FALSE AND {Facturacion.idPrestador} = "_s +
                                          QString::number(partes().idPrestador));
}

#include "moc_panFacturacion.cpp"
