#include "paediatrics/vaccines/cartas.h"

#include "core/session/session.h"
#include "platform/dao/database.h"
#include "platform/dao/sqltext.h"
#include "platform/reports/selection.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

constexpr qint64 renglonesPorAviso = 500;

/// False when it was stopped.
bool escribir(const QString &lote, const Atrasos &atrasos, const Atrasos::Avance &avance)
{
    dao::Batch juntas(MODULE11::BaseDatos, dao::Batch::Long);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"CartasVacunas"_s);
    for (qint64 renglon = 0; renglon < atrasos.cuantos(); ++renglon) {
        if (renglon % renglonesPorAviso == 0 && avance && !avance(renglon, atrasos.cuantos()))
            return false;
        filas.addNew();
        filas[u"Lote"] = lote;
        filas[u"Paciente"] = atrasos.paciente(renglon);
        filas[u"Renglon"] = renglon;
        filas[u"Vacuna"] = atrasos.valor(renglon, Atrasos::DeVacuna);
        filas[u"Dosis"] = atrasos.valor(renglon, Atrasos::DeDosis);
        filas[u"Atraso"] = atrasos.valor(renglon, Atrasos::DeAtraso);
        filas.update();
    }
    juntas.commit();
    return true;
}

} // namespace

void conCartas(const Atrasos &atrasos, const Atrasos::Avance &avance,
               const std::function<void(const QString &)> &muestra)
{
    const QString lote = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const auto quitar = [&] {
        MODULE11::BaseDatos.execute(u"Delete * from CartasVacunas where Lote = "_s + dao::quoted(lote));
    };
    try {
        if (escribir(lote, atrasos, avance))
            muestra(u"{CartasVacunas.Lote} = "_s + reports::literal(lote));
    } catch (...) {
        quitar();
        throw;
    }
    quitar();
}

} // namespace vacunas
