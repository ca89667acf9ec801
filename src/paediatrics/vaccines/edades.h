#pragma once

#include "core/services/planDeVacunas.h"
#include "platform/basic/value.h"

#include <map>
#include <optional>
#include <utility>

/// The true ages of the plan's doses, in days, which the sheet's rows only stand for.
namespace vacunas
{

/// What is not known, or has no limit, is empty.
struct EdadDeDosis {
    int recomendada = 0;
    std::optional<int> minima, maxima; ///< from and to which age the dose is of use
    std::optional<int> intervalo;      ///< at least so long after the dose of the vaccine before it
    QString grupo;                     ///< empty: for all

    /// Whether a child born on that day gets the dose by the plan. What is only for a risk, a region or a
    /// season is the doctor's to decide.
    bool corresponde(basic::Date nacimiento) const;
    /// For how many days the dose has been due on that day; nothing when it is not yet, no more, or not for
    /// the child. `anterior` is the day of the vaccine's dose before it, where that was given.
    std::optional<int> atraso(basic::Date nacimiento, basic::Date dia,
                              const std::optional<basic::Date> &anterior) const;
    /// Why a dose given on that day may not count; empty when it does.
    QString reparo(basic::Date nacimiento, basic::Date dia) const;
};

/// Those that the practice keeps, by vaccine and dose; a dose without has the age of its row of the sheet.
class Edades
{
public:
    Edades(); ///< throws dao::Error
    EdadDeDosis de(const DosisDelPlan &dosis) const;
    /// What is kept of a dose itself; nothing for one that goes by its row.
    const EdadDeDosis *guardada(const QString &vacuna, const QString &dosis) const;

private:
    std::map<std::pair<QString, QString>, EdadDeDosis> guardadas_; ///< in upper case
};

/// Replaces what is kept of a dose; nothing takes it away. Throws dao::Error.
void guardarEdad(const QString &vacuna, const QString &dosis, const std::optional<EdadDeDosis> &edad);

/// The time between two days as a person tells it: "2 años y 3 meses", "5 meses", "12 días".
QString tiempoEnPalabras(basic::Date desde, basic::Date hasta);

} // namespace vacunas
