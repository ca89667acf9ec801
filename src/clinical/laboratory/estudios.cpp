#include "clinical/laboratory/estudios.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/basic/typeddate.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace estudios
{

QString fechaEscrita(const QString &texto, basic::Date hoy)
{
    if (texto.trimmed() == sinFecha)
        return sinFecha;
    return basic::dateText(basic::Date(basic::typedDate(texto, hoy.date()).value_or(hoy.date())));
}

basic::Value fechaParaGuardar(const QString &texto)
{
    const auto dia = basic::toDate(texto);
    return dia ? basic::Value(*dia) : basic::Value(basic::Null{});
}

QString textoDeFecha(const basic::Value &fecha)
{
    return fecha.isBlank() ? sinFecha : basic::dateText(fecha.date());
}

void escribir(dao::Recordset &fila, qint64 paciente, const Estudio &estudio)
{
    fila[u"Paciente"] = paciente;
    fila[u"Fecha"] = estudio.fecha;
    fila[u"Tipo"] = estudio.tipo;
    fila[u"Especialista"] = estudio.especialista;
    fila[u"Resultados"] = estudio.resultados;
    fila[u"Observaciones"] = estudio.observaciones;
}

QString agregarAlCatalogo(const QString &nombre)
{
    dao::Recordset catalogo = BaseDatos.openRecordset(
        u"Select Estudio from TablaEstudios where Estudio = "_s + dao::quoted(nombre));
    if (!catalogo.eof())
        return catalogo[u"Estudio"].text();
    BaseDatos.execute(u"INSERT INTO tablaEstudios (Estudio) VALUES (%1)"_s.arg(dao::quoted(nombre)));
    return nombre;
}

} // namespace estudios
