#include "specialties/odontology/esquemas.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace esquemas
{

namespace
{

QString condicion(qint64 paciente, const QString &nombre)
{
    return u" from Odontograma where idPaciente=%1 and descripcion=%2"_s.arg(paciente).arg(
        dao::quoted(nombre));
}

void escribir(dao::Recordset &fila, qint64 paciente, const Guardado &esquema)
{
    fila[u"idPaciente"] = paciente;
    fila[u"string1"] = esquema.string1;
    fila[u"string2"] = esquema.string2;
}

} // namespace

QStringList nombres(qint64 paciente)
{
    QStringList todos;
    for (dao::Recordset filas = BaseDatos.openRecordset(
             u"select * from odontograma where idpaciente =%1 order by fecha, hora"_s.arg(paciente));
         !filas.eof(); filas.moveNext())
        todos += filas[u"descripcion"].text();
    return todos;
}

std::optional<Guardado> leer(qint64 paciente, const QString &nombre)
{
    dao::Recordset fila = BaseDatos.openRecordset(u"select *"_s + condicion(paciente, nombre));
    if (fila.eof())
        return std::nullopt;
    return Guardado{fila[u"string1"].text(), fila[u"string2"].text()};
}

void crear(qint64 paciente, const QString &nombre, const Guardado &esquema)
{
    dao::Recordset filas = BaseDatos.openRecordset(u"Odontograma"_s);
    filas.addNew();
    escribir(filas, paciente, esquema);
    filas[u"Descripcion"] = nombre;
    filas[u"Fecha"] = basic::today();
    filas[u"Hora"] = basic::time();
    filas[u"observaciones"] = u"Ninguna"_s;
    filas.update();
}

void guardar(qint64 paciente, const QString &nombre, const Guardado &esquema)
{
    dao::Recordset fila = BaseDatos.openRecordset(u"select *"_s + condicion(paciente, nombre));
    if (fila.eof()) {
        crear(paciente, nombre, esquema);
        return;
    }
    fila.edit([&] { escribir(fila, paciente, esquema); });
}

void borrar(qint64 paciente, const QString &nombre)
{
    BaseDatos.execute(u"delete"_s + condicion(paciente, nombre));
}

} // namespace esquemas
