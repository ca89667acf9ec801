#include "clinical/laboratory/perfiles.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace laboratorio
{

namespace
{

QStringList columna(const QString &sql)
{
    QStringList textos;
    for (dao::Recordset filas = BaseDatos.openRecordset(sql); !filas.eof(); filas.moveNext())
        textos += filas[0].text();
    return textos;
}

} // namespace

QStringList perfiles()
{
    return columna(u"Select distinct Perfil from PerfilesLaboratorio order by Perfil"_s);
}

QStringList estudiosDelPerfil(const QString &perfil)
{
    return columna(u"Select Estudio from PerfilesLaboratorio where Perfil = "_s + dao::quoted(perfil));
}

void guardarPerfil(const QString &perfil, const QStringList &estudios)
{
    dao::Batch lote(BaseDatos);
    borrarPerfil(perfil);
    dao::Recordset filas = BaseDatos.openRecordset(u"PerfilesLaboratorio"_s);
    for (const QString &estudio : estudios) {
        filas.addNew();
        filas[u"Perfil"] = perfil;
        filas[u"Estudio"] = estudio;
        filas.update();
    }
    lote.commit();
}

void borrarPerfil(const QString &perfil)
{
    BaseDatos.execute(u"Delete * from PerfilesLaboratorio where Perfil = "_s + dao::quoted(perfil));
}

} // namespace laboratorio
