#include "teeth.h"

#include "core/session/session.h"
#include "specialties/odontology/esquema.h"
#include "specialties/odontology/presupuestos.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr int daysOfFiveYears = 1826, daysOfTreatment = 120;

struct Price {
    const char *practice;
    int price;
};
constexpr Price prices[] = {
    {"Consulta y diagnóstico", 12000},
    {"Corona de porcelana", 185000},
    {"Corona de acero temporaria", 60000},
    {"Extracción simple", 38000},
    {"Implante", 420000},
    {"Limpieza y fluoruro", 25000},
    {"Obturación con resina", 45000},
    {"Prótesis parcial", 230000},
    {"Puente de tres piezas", 410000},
    {"Reconstrucción de pieza", 70000},
    {"Sellador de fosas", 18000},
    {"Tratamiento de conducto", 120000},
};

/// A tooth as it was found and as it was left.
struct Finding {
    int tooth; ///< by its place on the chart
    int before, after;
    std::vector<int> faces;
    const char *legend = "";
};
using odonto::sinMarca;
const std::vector<Finding> ofChild = {
    {34, sinMarca, sinMarca, {odonto::Centro, odonto::Derecha}, "resina"},
    {44, odonto::Conducto, odonto::Corona, {odonto::Centro}, "acero"},
    {51, sinMarca, sinMarca, {odonto::Centro}},
    {37, odonto::Ausente, odonto::Ausente, {}, "recambio"},
};
const std::vector<Finding> ofEldest = {
    {3, odonto::Conducto, odonto::Corona, {odonto::Centro, odonto::Arriba}, "perno"},
    {14, sinMarca, sinMarca, {odonto::Centro}},
    {19, odonto::Extraccion, odonto::Ausente, {}},
    {30, sinMarca, sinMarca, {odonto::Centro, odonto::Izquierda}, "resina"},
    {9, odonto::Fractura, sinMarca, {odonto::Abajo}},
};

/// Red is what was found, blue what was done.
odonto::Esquema scheme(const std::vector<Finding> &findings, bool treated)
{
    const int colour = treated ? odonto::azul : odonto::rojo;
    odonto::Esquema esquema;
    for (const Finding &finding : findings) {
        if (const int mark = treated ? finding.after : finding.before; mark != sinMarca)
            esquema.alternarMarca(finding.tooth, mark, colour);
        for (const int face : finding.faces)
            esquema.pintar(odonto::caraDe(finding.tooth, face), colour);
        if (treated && *finding.legend)
            esquema.ponerLeyenda(finding.tooth, QString::fromUtf8(finding.legend), colour);
    }
    return esquema;
}

void addScheme(qint64 patient, const QString &name, QDate day, const odonto::Esquema &esquema)
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Odontograma"_s);
    rows.addNew();
    rows[u"IdPaciente"] = patient;
    rows[u"Descripcion"] = name;
    rows[u"Fecha"] = day;
    rows[u"Hora"] = basic::Date(QTime(10, 0));
    rows[u"observaciones"] = u"Ninguna"_s;
    rows[u"string1"] = esquema.string1();
    rows[u"string2"] = esquema.string2();
    rows.update();
}

void addBudget(qint64 patient, QDate day, const odonto::Esquema &esquema)
{
    dao::Recordset heads = BaseDatos.openRecordset(u"Select * from presupuestos"_s);
    heads.addNew();
    heads[u"codpaciente"] = patient;
    heads[u"fecha"] = day;
    heads[u"Descripcion"] = u"Tratamiento completo"_s;
    heads.update();
    heads.setBookmark(heads.lastModified());
    QStringList without;
    for (const presupuestos::Propuesta &line : presupuestos::propuestas(esquema, without))
        presupuestos::agregar(heads[u"idpresupuesto"].integer(), line.practica.id,
                              static_cast<double>(line.piezas.size()));
}

void addRecord(const Patient &patient, const std::vector<Finding> &findings, QDate today)
{
    const odonto::Esquema found = scheme(findings, false);
    const QDate first = std::max(patient.birth, today.addDays(-daysOfTreatment));
    addScheme(patient.number, u"Inicial"_s, first, found);
    addScheme(patient.number, u"Tratado"_s, today, scheme(findings, true));
    addBudget(patient.number, first, found);
}

} // namespace

void addDentalRecords(const std::vector<Patient> &patients, QDate today)
{
    if (patients.empty())
        return;
    for (const Price &price : prices)
        presupuestos::nuevaPractica(QString::fromUtf8(price.practice),
                                    basic::Currency::fromDouble(price.price));
    const auto child = std::ranges::min_element(patients, {}, [&](const Patient &patient) {
        return std::abs(patient.birth.daysTo(today) - daysOfFiveYears);
    });
    addRecord(*child, ofChild, today);
    if (const auto eldest = std::ranges::min_element(patients, {}, &Patient::birth); eldest != child)
        addRecord(*eldest, ofEldest, today);
}

} // namespace practica
