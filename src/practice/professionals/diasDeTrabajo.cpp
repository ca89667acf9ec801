#include "practice/professionals/diasDeTrabajo.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

namespace practice
{

QString Atencion::texto() const
{
    return u"%1 a %2 y %3 a %4"_s.arg(desde1, hasta1, desde2, hasta2);
}

std::map<QDate, Atencion> diasDeTrabajo(qint64 idProfesional, int ano)
{
    std::map<QDate, Atencion> dias;
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select * from DisTurnos WHERE idProfesional = %1 AND "_s.arg(idProfesional) +
        dao::period(u"Fecha"_s, basic::Date(QDate(ano, 1, 1)), basic::Date(QDate(ano, 12, 31))));
    for (; !filas.eof(); filas.moveNext()) {
        const basic::Date fecha = filas[u"Fecha"].date();
        if (fecha == fecha.dateOnly())
            dias.emplace(fecha.date(), Atencion{filas[u"desde1"].text(), filas[u"hasta1"].text(),
                                                filas[u"desde2"].text(), filas[u"hasta2"].text()});
    }
    return dias;
}

} // namespace practice
