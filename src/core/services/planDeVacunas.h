#pragma once

#include "platform/dao/recordset.h"

#include <QString>

#include <vector>

/// The practice's vaccination plan and the doses noted of its patients, as every window reads them.
namespace vacunas
{

/// A dose that the plan schedules.
struct DosisDelPlan {
    QString descripcion; ///< of the vaccine, short; doses of one description share a column of the sheet
    QString detalle;     ///< its long name
    QString dosis;       ///< the key of its age, "12 MESES"
    QString vacuna;      ///< the code that is stored with each dose given
    double meses = 0;    ///< the age in months
};

/// In the plan's order. Throws dao::Error.
std::vector<DosisDelPlan> plan();

/// The remark that tells a dose prescribed and not given yet; written in any other way it is a dose given.
inline constexpr QStringView indicada = u"INDICADA";

/// The doses noted of all patients, sought one by one. Throws dao::Error.
class Registros
{
public:
    Registros();
    /// Stands on the patient's dose; false when none is noted.
    bool buscar(qint64 paciente, const QString &vacuna, const QString &dosis);
    bool esIndicada();
    dao::Recordset &fila() { return filas_; }

private:
    dao::Recordset filas_;
};

} // namespace vacunas
