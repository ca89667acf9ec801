#include "practice/billing/facturacion.h"

#include "platform/dao/sqltext.h"

#include <QRegularExpression>

#include <vector>

using namespace Qt::StringLiterals;

namespace facturacion
{

namespace
{

const QString primerNumero = u"X0001-00000001"_s;
const QString marca = u"o"_s;
constexpr int largoDeOrden = 30; ///< of a line; a visit's may be longer
constexpr std::size_t lineasPorTanda = 500;

const QString marcadas = u"Facturada = 0 AND TmpCheck = '%1'"_s.arg(marca);

QString clave(qint64 id)
{
    return QString::number(id);
}

QString pendientesDe(const Partes &partes, basic::Date desde, basic::Date hasta)
{
    return u" from Consulta where Dr = %1 and Facturada = 0 and Mutual = %2 and "_s.arg(
               dao::quoted(partes.prestador), dao::quoted(partes.obraSocial)) +
           dao::period(u"fecha"_s, desde, hasta);
}

QString condicionDeCobradas(const Partes &partes, int anio)
{
    QString condicion =
        u"(Facturacion.Cobrada = -1 or Facturacion.Cobrada = TRUE) AND Facturacion.IdPrestador = %1 AND "
        u"year(facturacion.fecha) = %2"_s.arg(clave(partes.idPrestador))
            .arg(anio);
    if (partes.idObraSocial != 0)
        condicion += u" AND facturacion.idObraSocial = "_s + clave(partes.idObraSocial);
    return condicion;
}

const QString facturasCon =
    u"SELECT Facturacion.idFacturacion, Facturacion.Cobrada, Facturacion.Numero, Facturacion.Fecha, "
    u"Facturacion.idObraSocial, Facturacion.Total, [Obra Social].Descripcion FROM Facturacion LEFT JOIN "
    u"[Obra Social] ON Facturacion.idObraSocial = [Obra Social].idObraSocial WHERE "_s;

basic::Value unico(dao::Database &base, const QString &sql)
{
    const dao::Recordset filas = base.openRecordset(sql);
    return filas.eof() ? basic::Value(basic::Null{}) : filas.value(0);
}

std::vector<qint64> clavesMarcadas(dao::Database &base)
{
    std::vector<qint64> claves;
    const dao::Recordset filas =
        base.openRecordset(u"SELECT idConsulta FROM Consulta WHERE %1 ORDER BY idConsulta"_s.arg(marcadas));
    base.readTogether([&] {
        for (qint64 fila = 0; filas.hasRow(fila); ++fila)
            claves.push_back(filas.valueAt(fila, 0).integer());
    });
    return claves;
}

/// The bill without lines: its key is the one its row was given, never one that another station may take too.
qint64 agregaFactura(dao::Database &base, const Partes &partes, const Emision &emision)
{
    dao::Recordset facturas = base.openRecordset(u"Facturacion"_s);
    facturas.addNew();
    facturas[u"Numero"] = emision.numero;
    facturas[u"idPrestador"] = partes.idPrestador;
    facturas[u"Fecha"] = emision.fecha;
    facturas[u"idObraSocial"] = partes.idObraSocial;
    facturas[u"Total"] = basic::Currency();
    facturas[u"Cobrada"] = emision.cobrada;
    facturas.update();
    facturas.setBookmark(facturas.lastModified());
    return facturas[u"idFacturacion"].integer();
}

basic::Value sumaDeLineas(dao::Database &base, qint64 factura)
{
    return unico(base, u"SELECT sum(Importe) FROM DetalleFacturacion WHERE idFactura = "_s + clave(factura));
}

/// The visits between two keys that are marked and on no bill yet, as lines of this one, and the total with
/// them, at one stroke: whoever asks after it, at any station, finds them billed.
qint64 agregaTanda(dao::Database &base, qint64 factura, qint64 desde, qint64 hasta)
{
    const QString visitas =
        u"%1 AND idConsulta >= %2 AND idConsulta <= %3"_s.arg(marcadas, clave(desde), clave(hasta));
    dao::Batch tanda(base);
    const qint64 lineas = base.execute(
        u"INSERT INTO DetalleFacturacion (idFactura, idPaciente, NroOrden, idPrestacion, Importe, idConsulta) "
        u"SELECT %1, Paciente, Left(NroOrden, %2), idPrestacion, Monto, idConsulta FROM Consulta WHERE %3 "
        u"ORDER BY idConsulta"_s.arg(clave(factura))
            .arg(largoDeOrden)
            .arg(visitas));
    base.execute(u"UPDATE Consulta SET Facturada = TRUE, TmpCheck = '' WHERE "_s + visitas);
    dao::Recordset propia =
        base.openRecordset(u"SELECT * FROM Facturacion WHERE idFacturacion = "_s + clave(factura));
    propia.edit([&] { propia[u"Total"] = sumaDeLineas(base, factura).currency(); });
    tanda.commit();
    return lineas;
}

void asienta(dao::Database &base, const QString &numero, basic::Date fecha, const basic::Value &total)
{
    dao::Recordset caja = base.openRecordset(u"Caja"_s);
    caja.addNew();
    caja[u"Fecha"] = fecha;
    caja[u"Hora"] = u"00:00"_s;
    caja[u"Cuenta"] = u"Facturacion"_s;
    caja[u"Detalle"] = u"Cobro de factura "_s + numero;
    caja[u"Entrada"] = total.currency();
    caja[u"Salida"] = basic::Currency();
    caja[u"Tipo"] = u"-"_s;
    caja.update();
}

} // namespace

QString pendientes(const Partes &partes, basic::Date desde, basic::Date hasta)
{
    return u"Select *"_s + pendientesDe(partes, desde, hasta);
}

QString sumaDePendientes(const Partes &partes, basic::Date desde, basic::Date hasta)
{
    return u"Select sum(Monto) as Total"_s + pendientesDe(partes, desde, hasta);
}

QString sinCobrar(const Partes &partes, basic::Date desde, basic::Date hasta)
{
    return facturasCon +
           u"Facturacion.Cobrada = 0 AND Facturacion.IdPrestador = %1 AND Facturacion.idObraSocial = %2 and "_s
               .arg(clave(partes.idPrestador), clave(partes.idObraSocial)) +
           dao::period(u"Facturacion.fecha"_s, desde, hasta);
}

QString cobradas(const Partes &partes, int anio)
{
    return facturasCon + condicionDeCobradas(partes, anio);
}

QString sumaDeCobradas(const Partes &partes, int anio)
{
    return u"SELECT sum(Facturacion.Total) as Total FROM Facturacion WHERE "_s +
           condicionDeCobradas(partes, anio);
}

QString detalle(qint64 idFacturacion)
{
    return u"SELECT DetalleFacturacion.idDetFacturacion, Pacientes.[Apellido y Nombres], "
           u"DetalleFacturacion.NroOrden, DetalleFacturacion.Importe, Prestaciones.Codigo, "
           u"Prestaciones.Descripcion, DetalleFacturacion.idFactura FROM (Pacientes RIGHT JOIN DetalleFacturacion "
           u"ON Pacientes.Numero = DetalleFacturacion.idPaciente) LEFT JOIN Prestaciones ON "
           u"DetalleFacturacion.idPrestacion = Prestaciones.idPrestacion WHERE DetalleFacturacion.IdFactura = "_s +
           clave(idFacturacion);
}

QString siguiente(const QString &numero)
{
    static const QRegularExpression ultimas(u"\\d+(?=\\D*$)"_s);
    const auto cifras = ultimas.match(numero);
    bool cabe = false;
    const qulonglong valor = cifras.captured().toULongLong(&cabe);
    if (!cifras.hasMatch() || !cabe)
        return primerNumero;
    const QString nuevas = u"%1"_s.arg(valor + 1, static_cast<int>(cifras.capturedLength()), 10, QChar(u'0'));
    return QString(numero).replace(cifras.capturedStart(), cifras.capturedLength(), nuevas);
}

QString proximoNumero(dao::Database &base, qint64 idPrestador)
{
    const basic::Value ultimo = unico(
        base,
        u"SELECT TOP 1 Numero FROM Facturacion WHERE idPrestador = %1 ORDER BY idFacturacion DESC"_s.arg(
            clave(idPrestador)));
    return ultimo.isBlank() ? primerNumero : siguiente(ultimo.text());
}

void alternaMarca(dao::Recordset &visita)
{
    visita.edit([&] { visita[u"TmpCheck"] = visita[u"TmpCheck"].text() == marca ? QString() : marca; });
}

std::optional<qint64> factura(dao::Database &base, const Partes &partes, const Emision &emision,
                              const std::function<void(qint64 hechas, qint64 de)> &avance)
{
    const std::vector<qint64> visitas = clavesMarcadas(base);
    if (visitas.empty())
        return std::nullopt;
    const qint64 nueva = agregaFactura(base, partes, emision);
    qint64 lineas = 0;
    // A few hundred lines a stroke: other stations write in between.
    for (std::size_t primera = 0; primera < visitas.size(); primera += lineasPorTanda) {
        const std::size_t ultima = std::min(visitas.size(), primera + lineasPorTanda) - 1;
        lineas += agregaTanda(base, nueva, visitas[primera], visitas[ultima]);
        if (avance)
            avance(static_cast<qint64>(ultima) + 1, std::ssize(visitas));
    }
    if (lineas == 0) { // all of them went on another station's bill in between
        base.execute(u"DELETE * FROM Facturacion WHERE idFacturacion = "_s + clave(nueva));
        return std::nullopt;
    }
    if (emision.asientaEnCaja)
        asienta(base, emision.numero, emision.fecha, sumaDeLineas(base, nueva));
    return nueva;
}

bool cobra(dao::Database &base, qint64 idFacturacion, bool asientaEnCaja, basic::Date fecha)
{
    dao::Batch juntas(base);
    if (base.execute(u"UPDATE Facturacion SET Cobrada = -1 where idFacturacion = %1 and Cobrada = 0"_s.arg(
            clave(idFacturacion))) == 0)
        return false;
    if (asientaEnCaja) {
        dao::Recordset cobrada =
            base.openRecordset(u"SELECT * FROM Facturacion WHERE idFacturacion = "_s + clave(idFacturacion));
        asienta(base, cobrada[u"Numero"].text(), fecha, cobrada[u"Total"]);
    }
    juntas.commit();
    return true;
}

} // namespace facturacion
