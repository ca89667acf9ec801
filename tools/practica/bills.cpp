#include "bills.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"
#include "practice/billing/facturacion.h"

#include <vector>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

struct Service {
    const char *code, *name;
    double fee, expenses;
};
constexpr Service services[] = {
    {"P-0101", "Consulta pediátrica", 9800, 0},
    {"P-0102", "Consulta en domicilio", 16500, 1200},
    {"P-0103", "Control de niño sano", 10400, 0},
    {"P-0104", "Control de recién nacido", 11900, 0},
    {"P-0201", "Atención en sala de partos", 48000, 6500},
    {"P-0202", "Luminoterapia, por día", 21000, 4300},
    {"P-0301", "Espirometría", 14300, 2100},
    {"P-0302", "Nebulización", 4100, 950},
    {"P-0401", "Pruebas cutáneas de alergia", 23500, 5200},
    {"P-0501", "Electrocardiograma", 12700, 1400},
    {"P-0601", "Fondo de ojos", 11200, 0},
    {"P-0602", "Agudeza visual", 6900, 0},
    {"P-0701", "Sutura de herida simple", 15800, 3600},
    {"P-0702", "Extracción de cuerpo extraño", 13900, 1700},
    {"P-0801", "Certificado de aptitud física", 7500, 0},
};
const QString invented = u" (precio inventado)"_s;

constexpr int billedMonths = 4;
constexpr int daysToPay = 50;

std::vector<facturacion::Partes> partiesWithVisits()
{
    std::vector<facturacion::Partes> all;
    for (dao::Recordset doctors =
             BaseDatos.openRecordset(u"Select idProfesional, Nombre from Profesionales"_s);
         !doctors.eof(); doctors.moveNext())
        for (dao::Recordset insurers =
                 BaseDatos.openRecordset(u"Select idObraSocial, Descripcion from [Obra Social]"_s);
             !insurers.eof(); insurers.moveNext())
            all.push_back(
                {doctors[0].integer(), insurers[0].integer(), doctors[1].text(), insurers[1].text()});
    return all;
}

/// The visits of a month are made ready for the insurer, each with an order's number and its state, and
/// billed.
void bill(const facturacion::Partes &parties, QDate month, QDate today)
{
    const basic::Date first(month), last(month.addMonths(1).addDays(-1));
    const QString ready =
        u"UPDATE Consulta SET idPrestacion = 1, NroOrden = 'O-' & idConsulta, ObrSocial = Mutual, StatusOrden = "
        u"'FACTURADO', TmpCheck = 'o' WHERE Dr = %1 AND Mutual = %2 AND Facturada = 0 AND Monto IS NOT NULL AND "_s
            .arg(dao::quoted(parties.prestador), dao::quoted(parties.obraSocial)) +
        dao::period(u"Fecha"_s, first, last);
    if (BaseDatos.execute(ready) == 0)
        return;
    const auto key = facturacion::factura(
        BaseDatos, parties, {facturacion::proximoNumero(BaseDatos, parties.idPrestador), last, false, false});
    if (const QDate paid = last.date().addDays(daysToPay); key && paid <= today)
        facturacion::cobra(BaseDatos, *key, true, basic::Date(paid));
}

} // namespace

void addTariffs()
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Prestaciones"_s);
    for (const Service &service : services) {
        rows.addNew();
        rows[u"Codigo"] = service.code;
        rows[u"Descripcion"] = QString::fromUtf8(service.name) + invented;
        rows[u"Honorarios Especialista"] = basic::Currency::fromDouble(service.fee);
        rows[u"Honorarios Ayudantes"] = basic::Currency();
        rows[u"Cantidad Ayudantes"] = 0;
        rows[u"Total Honorarios"] = basic::Currency::fromDouble(service.fee);
        rows[u"Gastos"] = basic::Currency::fromDouble(service.expenses);
        rows[u"CoSeguro"] = basic::Currency();
        rows[u"Valor Total"] = basic::Currency::fromDouble(service.fee + service.expenses);
        rows[u"AlicuotaIva"] = basic::Currency();
        rows.update();
    }
}

void addBills(QDate today)
{
    const QDate thisMonth(today.year(), today.month(), 1);
    const std::vector<facturacion::Partes> all = partiesWithVisits();
    for (int back = billedMonths; back >= 1; --back)
        for (const facturacion::Partes &parties : all)
            bill(parties, thisMonth.addMonths(-back), today);
}

} // namespace practica
