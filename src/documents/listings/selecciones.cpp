#include "documents/listings/selecciones.h"

#include "platform/dao/sqltext.h"
#include "platform/reports/selection.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace seleccion
{

namespace
{

constexpr int diagnosticosPorConsulta = 5;

/// The diagnosis in one of its places; `lugar` has the place's number at %1.
QString enAlgunLugar(const QString &lugar, const QString &diagnostico)
{
    QStringList lugares;
    for (int numero = 1; numero <= diagnosticosPorConsulta; ++numero)
        lugares += lugar.arg(numero) + u" = "_s + diagnostico;
    return lugares.join(u" or ");
}

QString clausula(const QString &campo, const std::optional<QString> &valor)
{
    return valor ? u"{%1} = "_s.arg(campo) + reports::literal(*valor) : u" true "_s;
}

QString clausula(const QString &campo, const std::optional<qint64> &clave)
{
    return clave ? u"{%1} = %2"_s.arg(campo, QString::number(*clave)) : u" true "_s;
}

QString entreFechas(const Periodo &periodo)
{
    const auto fecha = [](basic::Date dia) { return dia.date().toString(u"'#'MM/dd/yyyy'#'"_s); };
    return u"fecha >= %1 and fecha <= %2"_s.arg(fecha(periodo.desde), fecha(periodo.hasta));
}

QString consultasQue(const QString &condicion)
{
    return u"Select fecha, hora, [nombre del paciente], [sintoma 1], [sintoma 2], [sintoma 3], [sintoma 4], "
           u"[sintoma 5] from Consulta where "_s +
           condicion + u" order by fecha"_s;
}

} // namespace

QString deConsultas(const Periodo &periodo)
{
    return reports::period(u"consulta.fecha"_s, periodo.desde, periodo.hasta);
}

QString dePatologia(const Periodo &periodo, const QString &diagnostico)
{
    return deConsultas(periodo) + u" and ( "_s +
           enAlgunLugar(u"{consulta.Diagnostico %1}"_s, reports::literal(diagnostico)) + u" )"_s;
}

QString dePacientes(const std::optional<qint64> &idProfesional)
{
    return idProfesional ? clausula(u"pacientes.idProfesional"_s, idProfesional)
                         : u"{pacientes.numero} <> 0"_s;
}

QString deTurnos(const Periodo &periodo, const Filtros &filtros)
{
    return QStringList{reports::period(u"Turnos.Fecha"_s, periodo.desde, periodo.hasta),
                       clausula(u"Turnos.Dr"_s, filtros.profesional),
                       clausula(u"Turnos.Paciente"_s, filtros.paciente),
                       clausula(u"Turnos.Mutual"_s, filtros.obraSocial)}
        .join(u" and ");
}

QString deAtenciones(const Periodo &periodo, const Filtros &filtros)
{
    return QStringList{reports::period(u"Consulta.Fecha"_s, periodo.desde, periodo.hasta),
                       clausula(u"Consulta.Dr"_s, filtros.profesional),
                       clausula(u"consulta.idPrestacion"_s, filtros.idPrestacion),
                       clausula(u"consulta.statusorden"_s, filtros.estadoDeOrden),
                       clausula(u"Consulta.[Nombre del Paciente]"_s, filtros.paciente),
                       clausula(u"Consulta.Mutual"_s, filtros.obraSocial)}
        .join(u" and ");
}

QString listaDeConsultas(const Periodo &periodo)
{
    return consultasQue(entreFechas(periodo));
}

QString listaPorDiagnostico(const Periodo &periodo, const QString &diagnostico)
{
    return consultasQue(entreFechas(periodo) + u" and "_s +
                        enAlgunLugar(u"[Diagnostico %1]"_s, dao::quoted(diagnostico)));
}

QString listaDePacientes(const std::optional<qint64> &idProfesional)
{
    const QString condicion =
        idProfesional ? u" where idProfesional = "_s + QString::number(*idProfesional) : QString();
    return u"Select Numero, [Apellido y Nombres], [Fecha de Nacimiento], Documento, Domicilio, Localidad, "
           u"Telefono, [Obra Social], [Numero de Afiliado] from Pacientes"_s +
           condicion + u" order by [Apellido y Nombres]"_s;
}

} // namespace seleccion
