#include "paediatrics/vaccines/cartas.h"

#include "core/session/session.h"
#include "platform/dao/database.h"
#include "platform/dao/sqltext.h"
#include "platform/reports/selection.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace vacunas
{

Cartas::Cartas(const Atrasos &atrasos) : lote_(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    dao::Batch juntas(MODULE11::BaseDatos, dao::Batch::Long);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"CartasVacunas"_s);
    for (qint64 renglon = 0; renglon < atrasos.cuantos(); ++renglon) {
        filas.addNew();
        filas[u"Lote"] = lote_;
        filas[u"Paciente"] = atrasos.paciente(renglon);
        filas[u"Renglon"] = renglon;
        filas[u"Vacuna"] = atrasos.valor(renglon, Atrasos::DeVacuna);
        filas[u"Dosis"] = atrasos.valor(renglon, Atrasos::DeDosis);
        filas[u"Atraso"] = atrasos.valor(renglon, Atrasos::DeAtraso);
        filas.update();
    }
    juntas.commit();
}

/// A station that cannot take its letters away leaves them: nobody else reads them.
Cartas::~Cartas()
{
    basic::ignoring({dao::Error::Locked}, [this] {
        MODULE11::BaseDatos.execute(u"Delete * from CartasVacunas where Lote = "_s + dao::quoted(lote_));
    });
}

QString Cartas::seleccion() const
{
    return u"{CartasVacunas.Lote} = "_s + reports::literal(lote_);
}

} // namespace vacunas
