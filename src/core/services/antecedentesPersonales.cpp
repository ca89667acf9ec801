#include "core/services/antecedentesPersonales.h"

#include "core/session/session.h"

using namespace Qt::StringLiterals;

namespace services
{

QStringList antecedentesPersonales(qint64 paciente)
{
    QStringList antecedentes;
    for (dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
             u"Select * from [Antecedentes Personales] where Paciente = %1 and not (Antecedente is null)"_s
                 .arg(paciente),
             dao::Recordset::Kind::Snapshot);
         !fila.eof(); fila.moveNext())
        antecedentes += fila[u"Antecedente"].text();
    return antecedentes;
}

void guardaAntecedentesPersonales(qint64 paciente, const QStringList &antecedentes)
{
    dao::Batch juntos(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(
        u"Delete * from [antecedentes personales] where paciente = %1 and not (Antecedente is null)"_s.arg(
            paciente));
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Antecedentes personales"_s);
    for (const QString &antecedente : antecedentes) {
        filas.addNew();
        filas[u"Paciente"] = paciente;
        filas[u"Antecedente"] = antecedente;
        filas.update();
    }
    juntos.commit();
}

} // namespace services
