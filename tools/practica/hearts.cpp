#include "hearts.h"

#include "core/session/session.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

using Findings = std::map<QString, QString>;

const Findings always = {
    {u"Electro - VELOCIDAD"_s, u"25 mm/s"_s},
    {u"Electro - RITMO"_s, u"Sinusal"_s},
    {u"Pulsos Perifericos - DRADIA"_s, u"++"_s},
    {u"Pulsos Perifericos - IRADIA"_s, u"++"_s},
    {u"Pulsos Perifericos - DFEMOR"_s, u"++"_s},
    {u"Pulsos Perifericos - IFEMOR"_s, u"++"_s},
    {u"Primer ruido cardiaco"_s, u"Normal"_s},
    {u"Murmullo diastolico"_s, u"No"_s},
    {u"Estructura del torax"_s, u"Simétrico"_s},
    {u"Auscultacion del torax"_s, u"Murmullo vesicular conservado, sin ruidos agregados"_s},
};

/// From the first record to the last.
const Findings inTurn[] = {
    {{u"Electro - INTERV PQ"_s, u"0,12 s"_s},
     {u"Electro - Interpretacion"_s, u"Sobrecarga leve del ventrículo izquierdo."_s},
     {u"Segundo ruido cardiaco"_s, u"Levemente reforzado"_s},
     {u"Murmullo sistolico"_s, u"Holosistólico 3/6 en mesocardio, con frémito"_s}},
    {{u"Electro - INTERV PQ"_s, u"0,13 s"_s},
     {u"Electro - Interpretacion"_s, u"Dentro de límites normales para la edad."_s},
     {u"Segundo ruido cardiaco"_s, u"Normal"_s},
     {u"Murmullo sistolico"_s, u"Protosistólico 2/6 en mesocardio, sin frémito"_s}},
    {{u"Electro - INTERV PQ"_s, u"0,14 s"_s},
     {u"Electro - Interpretacion"_s, u"Normal."_s},
     {u"Segundo ruido cardiaco"_s, u"Normal, desdoblamiento fisiológico"_s},
     {u"Murmullo sistolico"_s, u"No se ausculta"_s}},
};

void addAntecedents(qint64 patient)
{
    dao::Recordset row = BaseDatos.openRecordset(u"AntecedentesCardiologicos"_s);
    row.addNew();
    row[u"idPaciente"] = patient;
    row[u"Enfermedad Cardiaca anterior"] = true;
    row[u"Otros"] = u"Comunicación interventricular muscular pequeña, en seguimiento."_s;
    row.update();
}

/// Examined for sports at the last of the records.
void addSportsExamination(qint64 patient, QDate day)
{
    dao::Recordset row = BaseDatos.openRecordset(u"HC_Deportiva"_s);
    row.addNew();
    row[u"idPaciente"] = patient;
    row[u"Fecha"] = day;
    row[u"Desde que Edad Practica Deportes"] = u"7 años"_s;
    row[u"Deportes Actuales"] = u"Natación"_s;
    row[u"Dias Por Semana que Entrena"] = u"2"_s;
    row[u"Inmunizado contra Tetanos"] = true;
    row[u"Enfermedades Congenitas"] = true;
    row.update();
}

} // namespace

void addHeartPatient(const std::vector<Patient> &patients)
{
    const auto followed =
        std::ranges::max_element(patients, {}, [](const Patient &patient) { return patient.visits.size(); });
    if (followed == patients.end() || followed->visits.size() < std::size(inTurn))
        return;
    addAntecedents(followed->number);
    dao::Recordset records = BaseDatos.openRecordset(u"ConsultaCardiologia"_s);
    auto age = followed->visits.end() - std::ssize(inTurn);
    for (const Findings &findings : inTurn) {
        records.addNew();
        records[u"idPaciente"] = followed->number;
        records[u"Fecha"] = followed->day(*age++);
        for (const Findings &some : {always, findings})
            for (const auto &[column, text] : some)
                records[column] = text;
        records.update();
    }
    addSportsExamination(followed->number, followed->day(followed->visits.back()));
}

} // namespace practica
