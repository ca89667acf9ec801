#include "figures/turnosPorMes.h"

#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

namespace figures
{

namespace
{

QString siHay(const QString &condicion, const QString &valor)
{
    return valor.isEmpty() ? QString() : u" AND "_s + condicion + dao::quoted(valor);
}

} // namespace

QString consultaDeTurnos(const FiltroDeTurnos &filtro)
{
    const QString mes = u"Str(Month([Fecha]))+' / '+Str(Year([fecha]))"_s;
    const QString donde =
        u" TRUE  AND (month(fecha) >= %1 and year(fecha) >= %2) AND (month(fecha) <= %3 and year(fecha) <= %4)"_s
            .arg(filtro.desde.month())
            .arg(filtro.desde.year())
            .arg(filtro.hasta.month())
            .arg(filtro.hasta.year()) +
        siHay(u"Turnos.Estado = "_s, filtro.estado) +
        siHay(u"Profesionales.Especialidad = "_s, filtro.especialidad) +
        siHay(u"[Obra Social].Descripcion = "_s, filtro.obraSocial) +
        siHay(u"Turnos.Dr = "_s, filtro.profesional);
    return u"SELECT "_s + mes +
           u" AS Mes, Turnos.Dr, Turnos.Estado, Count(1) AS Cantidad, Profesionales.Especialidad, [Obra Social].Descripcion FROM (Profesionales INNER JOIN Turnos ON Profesionales.idProfesional = Turnos.idProfesional) INNER JOIN [Obra Social] ON Turnos.idMutual = [Obra Social].idObraSocial WHERE "_s +
           donde + u" GROUP BY "_s + mes +
           u", Turnos.Dr, Turnos.Estado, Profesionales.Especialidad, [Obra Social].Descripcion ORDER BY "_s +
           mes + u", Profesionales.Especialidad"_s;
}

QString seleccionDeTurnos(const FiltroDeTurnos &filtro)
{
    return u" TRUE  AND month({Turnos.fecha}) >= %1 AND year({Turnos.fecha}) >= %2 AND  month({Turnos.fecha}) <= %3 AND year({Turnos.fecha}) <= %4"_s
               .arg(filtro.desde.month())
               .arg(filtro.desde.year())
               .arg(filtro.hasta.month())
               .arg(filtro.hasta.year()) +
           siHay(u"{Obra Social.Descripcion} = "_s, filtro.obraSocial) +
           siHay(u"{Profesionales.Nombre} = "_s, filtro.profesional) +
           siHay(u"{Turnos.Estado} = "_s, filtro.estado) +
           siHay(u"{Profesionales.Especialidad} = "_s, filtro.especialidad);
}

} // namespace figures
