#include "core/services/planDeVacunas.h"

#include "core/session/session.h"
#include "platform/dao/database.h"

using namespace Qt::StringLiterals;

namespace vacunas
{

std::vector<DosisDelPlan> plan()
{
    std::vector<DosisDelPlan> dosis;
    for (dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
             u"select * from CalVacunas order by orden"_s, dao::Recordset::Kind::Snapshot);
         !filas.eof(); filas.moveNext())
        dosis.push_back({filas[u"Descripcion"].text(), filas[u"detalle"].text(), filas[u"Dosis"].text(),
                         filas[u"Vacuna"].text(), filas[u"Tiempo en meses"].number()});
    return dosis;
}

Registros::Registros() : filas_(MODULE11::BaseDatos.openRecordset(u"Vacunas"_s))
{
    filas_.setIndex(u"VacIndex");
}

bool Registros::buscar(qint64 paciente, const QString &vacuna, const QString &dosis)
{
    filas_.seek(u"=", {basic::Value(paciente), basic::Value(vacuna), basic::Value(dosis)});
    return !filas_.noMatch();
}

bool Registros::esIndicada()
{
    return filas_[u"observaciones"].text() == indicada;
}

} // namespace vacunas
