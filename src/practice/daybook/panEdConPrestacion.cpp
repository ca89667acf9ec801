#include "practice/daybook/panEdConPrestacion.h"

#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "practice/tariffs/importe.h"

#include <QFocusEvent>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BuscaCampo;

namespace
{

QString delPaciente(const QString &campo, const basic::Value &numero)
{
    return u"Select numero, [%1] from pacientes where numero = %2"_s.arg(campo,
                                                                         QString::number(numero.integer()));
}

basic::Value deLaPrestacion(const QString &campo, qint64 clave)
{
    return BuscaCampo(
        u"Select idPrestacion, [%1] from Prestaciones where idPrestacion = %2"_s.arg(campo).arg(clave),
        campo);
}

} // namespace

panEdConPrestacion::panEdConPrestacion() : Form(u"panEdConPrestacion"_s)
{
    setWindowTitle(u"Editar prestación / consulta"_s);
    services::agregarConClave(cbPrestacion, u"Select * from Prestaciones order by Descripcion"_s,
                              u"Descripcion", u"idPrestacion");
    cbPrestacion.setCurrentIndex(-1);
    services::agregarConClave(cbOSocial, u"Select * from [Obra Social] order by Descripcion"_s,
                              u"Descripcion", u"idObraSocial");
    cbOSocial.addItem(u"PARTICULAR"_s);
    cbOSocial.setCurrentIndex(-1);
    disponer();
    txCgoPrestacion.installEventFilter(this);
    connect(&cbPrestacion, &QComboBox::activated, this, &panEdConPrestacion::prestacionElegida);
    connect(&txCgoPrestacion, &QLineEdit::textEdited, this, &panEdConPrestacion::codigoEscrito);
    connect(&Command1, &QPushButton::clicked, this, &panEdConPrestacion::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panEdConPrestacion::disponer()
{
    txCgoPrestacion.setMaximumWidth(120);
    txMonto.setMaximumWidth(140);
    setContents(this, Column{
                          Group(u"Ingreso de datos para la facturación"_s,
                                Fields{{u"C&ódigo :"_s, Row{txCgoPrestacion, Stretch()}},
                                       {u"&Prestación :"_s, cbPrestacion},
                                       {u"&Obra social :"_s, cbOSocial},
                                       {u"Nº de a&filiado :"_s, txNroAfiliado},
                                       {u"Nº de o&rden :"_s, txNroOrden},
                                       {u"&Monto :"_s, Row{txMonto, Stretch()}},
                                       {u"&Estado de la orden :"_s, cbStatus}}),
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(560, 360);
}

void panEdConPrestacion::mostrar(dao::Recordset &consulta)
{
    if (const basic::Value clave = consulta[u"idPrestacion"]; !clave.isNull()) {
        cbPrestacion.setCurrentIndex(cbPrestacion.findData(clave.integer()));
        txCgoPrestacion.setText(deLaPrestacion(u"Codigo"_s, clave.integer()).text());
    }
    txNroOrden.setText(consulta[u"NroOrden"].text());
    const basic::Value paciente = consulta[u"Paciente"];
    const basic::Value cobertura = consulta[u"ObrSocial"];
    cbOSocial.setValue((cobertura.isBlank()
                            ? BuscaCampo(delPaciente(u"Obra Social"_s, paciente), u"Obra Social")
                            : cobertura)
                           .text());
    txNroAfiliado.setText(
        BuscaCampo(delPaciente(u"Numero de Afiliado"_s, paciente), u"Numero de Afiliado").text());
    txMonto.setText(importes::paraEditar(consulta[u"Monto"]));
    const basic::Value estado = consulta[u"StatusOrden"];
    cbStatus.setValue(estado.isNull() ? u"PENDIENTE"_s : estado.text());
}

/// The fee takes the place of whatever amount was there.
void panEdConPrestacion::prestacionElegida()
{
    const qint64 clave = cbPrestacion.currentData().toLongLong();
    txMonto.setText(importes::paraEditar(deLaPrestacion(u"Honorarios Especialista"_s, clave)));
    if (!txCgoPrestacion.hasFocus()) // never under the hands of who types it
        txCgoPrestacion.setText(deLaPrestacion(u"Codigo"_s, clave).text());
}

/// What is typed counts as the key of a service; as its code it counts when the field is left.
void panEdConPrestacion::codigoEscrito(const QString &texto)
{
    if (!basic::isNumeric(texto))
        return;
    const int entrada = cbPrestacion.findData(static_cast<qint64>(basic::val(texto)));
    if (entrada < 0)
        return;
    cbPrestacion.setCurrentIndex(entrada);
    prestacionElegida();
}

bool panEdConPrestacion::eventFilter(QObject *control, QEvent *evento)
{
    if (control == &txCgoPrestacion && evento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent *>(evento)->reason();
        if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason)
            QMetaObject::invokeMethod(this, &panEdConPrestacion::verificarCodigo, Qt::QueuedConnection);
    }
    return false;
}

void panEdConPrestacion::verificarCodigo()
{
    const QString texto = txCgoPrestacion.text();
    if (!isVisible() || texto.isEmpty() || Command2.hasFocus())
        return;
    dao::Recordset prestacion = MODULE11::BaseDatos.openRecordset(
        u"Select * from prestaciones where codigo = "_s + dao::quoted(texto));
    if (prestacion.eof()) {
        MODULE11::MuestraError(u"Código de prestación inválido!"_s);
        txCgoPrestacion.clear();
        txCgoPrestacion.setFocus();
        return;
    }
    // A code that is typed whole chooses its service, unless it was chosen as a key.
    const bool elegidaPorClave =
        basic::isNumeric(texto) && cbPrestacion.currentIndex() >= 0 &&
        cbPrestacion.currentData().toLongLong() == static_cast<qint64>(basic::val(texto));
    const int entrada = cbPrestacion.findData(prestacion[u"idPrestacion"].integer());
    if (elegidaPorClave || entrada < 0 || entrada == cbPrestacion.currentIndex())
        return;
    cbPrestacion.setCurrentIndex(entrada);
    prestacionElegida();
}

QWidget *panEdConPrestacion::faltante()
{
    if (cbPrestacion.currentIndex() < 0)
        return &cbPrestacion;
    if (cbOSocial.value().isEmpty())
        return &cbOSocial;
    if (txNroOrden.text().isEmpty())
        return &txNroOrden;
    if (!importes::escrito(txMonto.text()))
        return &txMonto;
    return cbStatus.value().isEmpty() ? &cbStatus : nullptr;
}

void panEdConPrestacion::aceptar()
{
    QWidget *campo = faltante();
    if (!campo) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Error, datos mal ingresados !"_s);
    markWrong(*campo, campo == &txMonto ? u"Tiene que ser un número"_s : u"No puede faltar"_s);
}

void panEdConPrestacion::escribir(dao::Recordset &consulta) const
{
    dao::Batch juntas(MODULE11::BaseDatos);
    consulta.edit([&] {
        consulta[u"idPrestacion"] = cbPrestacion.currentData().toLongLong();
        consulta[u"Monto"] = *importes::escrito(txMonto.text());
        consulta[u"NroOrden"] = txNroOrden.text();
        consulta[u"ObrSocial"] = cbOSocial.value();
        consulta[u"StatusOrden"] = cbStatus.value();
    });
    MODULE11::BaseDatos.execute(
        u"UPDATE pacientes SET [Obra Social] = %1, [Numero de Afiliado] = %2 where numero = %3"_s.arg(
            dao::quoted(cbOSocial.value()), dao::quoted(txNroAfiliado.text()),
            QString::number(consulta[u"Paciente"].integer())));
    juntas.commit();
}

#include "moc_panEdConPrestacion.cpp"
