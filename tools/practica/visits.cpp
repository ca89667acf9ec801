#include "visits.h"

#include "core/session/session.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

/// On the half hours of the morning and the afternoon; no afternoon on Saturdays.
QString hourOf(QDate day, Dice &dice)
{
    const bool morning = day.dayOfWeek() == Qt::Saturday || chance(dice, 0.4);
    const int halfHours = morning ? between(dice, 18, 24) : between(dice, 28, 37);
    return QTime(halfHours / 2, halfHours % 2 * 30).toString(u"HH:mm"_s);
}

QString generalState(const Episode &episode, Dice &dice)
{
    if (episode.healthy)
        return oneOf(dice, {u"Muy bueno"_s, u"Bueno"_s, u"Bueno"_s, u"Excelente"_s});
    if (episode.extraBreaths >= 10)
        return oneOf(dice, {u"Regular, con dificultad respiratoria leve"_s, u"Regular, taquipneic{o}"_s,
                            u"Bueno, taquipneic{o}, buena mecánica"_s});
    if (episode.febrile())
        return oneOf(dice, {u"Regular, febril"_s, u"Bueno, febril, reactiv{o}"_s, u"Decaíd{o}, febril"_s});
    return oneOf(dice, {u"Bueno"_s, u"Bueno, afebril"_s, u"Buen estado general"_s, u""_s});
}

QString nutrition(const Patient &patient, int ageInDays, Dice &dice)
{
    const double overweight = patient.channel.weight - 0.7 * patient.channel.height;
    const QString state = patient.channel.weight < -1.9 ? u"Bajo peso"_s
                          : overweight > 1.3 && ageInDays > 2 * 365
                              ? u"Sobrepeso"_s
                              : oneOf(dice, {u"Eutrófic{o}"_s, u"Eutrófic{o}"_s, u"Bueno"_s});
    if (ageInDays < 180)
        return state + oneOf(dice, {u". Pecho exclusivo"_s, u". Pecho exclusivo"_s, u". Pecho y fórmula"_s,
                                    u". Fórmula de inicio"_s});
    if (ageInDays < 365)
        return state + oneOf(dice, {u". Pecho y dos comidas"_s, u". Pecho y papillas"_s,
                                    u". Fórmula de continuación y papillas"_s});
    return state + oneOf(dice, {u""_s, u""_s, u". Dieta variada"_s, u". Come poca verdura"_s});
}

/// As a person types a number.
QString typed(double number)
{
    return QString::number(number).replace(u'.', u',');
}

} // namespace

VisitBook::VisitBook()
    : visits_(BaseDatos.openRecordset(u"Consulta"_s)), findings_(BaseDatos.openRecordset(u"ExFisico"_s))
{
    dao::Recordset rows =
        BaseDatos.openRecordset(u"Select Descripcion, [Precio Consulta] from [Obra Social]"_s);
    for (; !rows.eof(); rows.moveNext())
        prices_[rows[0].text()] = rows[1].value();
}

void VisitBook::add(const Patient &patient, int ageInDays, const Growth::Measures &measures, bool examined,
                    Dice &dice)
{
    const QDate day = patient.day(ageInDays);
    const bool boy = patient.person.boy;
    const Doctor &doctor = patient.seenBy(ageInDays);
    const Episode episode = pictures_.at(ageInDays, boy, day, dice);
    const int pulse = usualHeartRate(ageInDays) + static_cast<int>(10 * (episode.temperature - 36.5)) +
                      between(dice, -8, 8);
    const int breaths =
        usualBreaths(ageInDays) + episode.extraBreaths + (episode.febrile() ? 3 : 0) + between(dice, -2, 3);

    consultas::Visita visit;
    visit.fecha = basic::Date(day);
    visit.hora = hourOf(day, dice);
    visit.consultorio = !episode.febrile() || !chance(dice, 0.08);
    visit.primera = ageInDays == patient.visits.front();
    visit.motivo = episode.motive;
    visit.peso = typed(measures.weight);
    visit.talla = typed(measures.height);
    visit.estadoGeneral = gendered(generalState(episode, dice), boy);
    visit.alimentacion = gendered(nutrition(patient, ageInDays, dice), boy);
    visit.pulso = QString::number(pulse);
    visit.temperatura = typed(episode.temperature);
    visit.respiracion = QString::number(breaths);
    visit.especialidad = doctor.speciality;
    visit.renglones = episode.entries;
    if (examined)
        visit.examen = examination_.of({ageInDays, boy, pulse}, episode, dice);

    const QString number = QString::number(patient.number);
    const auto price = prices_.find(patient.coverage);
    const qint64 key = consultas::agregarConsulta(visits_, number, visit,
                                                  {patient.person.full(), boy ? u"Varon"_s : u"Mujer"_s,
                                                   patient.coverage, doctor.name, ageInDays,
                                                   price == prices_.end() ? basic::Value() : price->second});
    consultas::agregarExamen(findings_, number, key, visit, doctor.name);
}

} // namespace practica
