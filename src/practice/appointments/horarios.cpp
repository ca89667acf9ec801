#include "practice/appointments/horarios.h"

#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "practice/appointments/turnos.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace horarios
{

namespace
{

constexpr std::array<QStringView, 4> columnas = {u"desde1", u"hasta1", u"desde2", u"hasta2"};

QString cdate(QDate fecha)
{
    return dao::cdate(basic::Date(fecha));
}

void borrarPeriodo(const QString &tabla, const Esquema &esquema)
{
    BaseDatos.execute(u"DELETE * FROM %1 WHERE %2 AND idProfesional = %3"_s.arg(
        tabla, dao::period(u"Fecha"_s, basic::Date(esquema.desde), basic::Date(esquema.hasta)),
        QString::number(esquema.idProfesional)));
}

void borrarDia(const QString &tabla, const Esquema &esquema, QDate fecha)
{
    BaseDatos.execute(u"DELETE * from %1 WHERE idProfesional = %2 AND Fecha = %3"_s.arg(
        tabla, QString::number(esquema.idProfesional), cdate(fecha)));
}

void escribirHorario(const Esquema &esquema, QDate fecha)
{
    dao::Recordset dias =
        BaseDatos.openRecordset(u"Select * from DisTurnos WHERE idProfesional = %1 AND Fecha = %2"_s.arg(
            QString::number(esquema.idProfesional), cdate(fecha)));
    if (dias.eof())
        dias.addNew();
    else
        dias.edit();
    dias[u"idProfesional"] = esquema.idProfesional;
    dias[u"Fecha"] = fecha;
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (esquema.horas[i].isValid() && esquema.horas[i] != QTime(0, 0))
            dias[columnas[i]] = texto(esquema.horas[i]);
    dias.update();
}

/// A free place of anybody at that date and hour is enough for none to be added; given ones do not count.
bool hayLugarLibre(QDate fecha, const QString &hora)
{
    return !BaseDatos
                .openRecordset(u"Select * from turnos WHERE Fecha = %1 AND Hora = %2 AND Paciente = %3"_s.arg(
                    cdate(fecha), dao::quoted(hora), dao::quoted(turnos::sinAsignar)))
                .eof();
}

void agregarLugar(dao::Recordset &lugares, const Esquema &esquema, QDate fecha, const QString &hora)
{
    lugares.addNew();
    lugares[u"Paciente"] = turnos::sinAsignar;
    lugares[u"Fecha"] = fecha;
    lugares[u"Hora"] = hora;
    lugares[u"Mutual"] = QString();
    lugares[u"Dr"] = esquema.nombre;
    lugares[u"idProfesional"] = esquema.idProfesional;
    lugares[u"idPaciente"] = 0;
    lugares[u"idMutual"] = 0;
    lugares.update();
}

template <class Trabajo>
void recorrer(const Esquema &esquema, const Avance &avance, const Trabajo &trabajo)
{
    const std::vector<QDate> todas = fechas(esquema.desde, esquema.hasta, esquema.dias);
    int hechas = 0;
    for (const QDate fecha : todas) {
        trabajo(fecha);
        if (avance)
            avance(++hechas, static_cast<int>(todas.size()));
    }
}

} // namespace

QString texto(QTime hora)
{
    return hora.toString(u"HH:mm");
}

QStringList lugares(QTime desde, QTime hasta, int intervalo)
{
    QStringList horas;
    const int minutos = desde.secsTo(hasta) / 60;
    if (intervalo <= 0)
        return horas;
    for (int n = 0; n < minutos; n += intervalo)
        horas += texto(desde.addSecs(n * 60));
    return horas;
}

std::vector<QDate> fechas(QDate desde, QDate hasta, const Dias &dias)
{
    std::vector<QDate> elegidas;
    for (QDate fecha = desde; fecha <= hasta; fecha = fecha.addDays(1))
        if (dias.test(static_cast<std::size_t>(basic::weekday(basic::Date(fecha)))))
            elegidas.push_back(fecha);
    return elegidas;
}

bool intervaloValido(const std::optional<int> &intervalo)
{
    return !intervalo || *intervalo > 0;
}

void aplicar(const Esquema &esquema, bool reemplazar, const Avance &avance)
{
    if (!intervaloValido(esquema.intervalo))
        throw basic::Error(5, u"El intervalo entre turnos debe ser mayor que cero."_s);
    QStringList horas;
    for (const std::size_t k : {std::size_t{0}, std::size_t{2}})
        horas += lugares(esquema.horas[k], esquema.horas[k + 1], esquema.intervalo.value_or(0));

    dao::Batch lote(BaseDatos, dao::Batch::Long);
    if (reemplazar) {
        borrarPeriodo(u"DisTurnos"_s, esquema);
        borrarPeriodo(u"Turnos"_s, esquema);
    }
    dao::Recordset lugaresDelLibro = BaseDatos.openRecordset(u"Turnos"_s);
    recorrer(esquema, avance, [&](QDate fecha) {
        escribirHorario(esquema, fecha);
        for (const QString &hora : horas)
            if (!hayLugarLibre(fecha, hora))
                agregarLugar(lugaresDelLibro, esquema, fecha, hora);
    });
    lote.commit();
}

void quitar(const Esquema &esquema, const Avance &avance)
{
    dao::Batch lote(BaseDatos, dao::Batch::Long);
    recorrer(esquema, avance, [&](QDate fecha) {
        borrarDia(u"DisTurnos"_s, esquema, fecha);
        borrarDia(u"turnos"_s, esquema, fecha);
    });
    lote.commit();
}

} // namespace horarios
