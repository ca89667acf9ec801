#pragma once

#include "core/services/planDeVacunas.h"
#include "platform/basic/value.h"

#include <optional>
#include <span>

/// The rules of the vaccination sheet: which dose stands where, and what its marker tells.
namespace vacunas
{

/// An age row of the sheet, with the key that the doses of that age carry.
struct FilaDeEdad {
    QStringView rotulo, clave;
    int meses;
};
/// The twelve rows, from the youngest.
std::span<const FilaDeEdad> filasDeEdad();
/// The row of a dose by its key, whatever its case; nothing for a key of none.
std::optional<int> filaDe(const QString &dosis);

/// The age in months that is kept with a dose of the plan. An edited dose of the third or the fifth month
/// gets that of a key of no row: the practice's plans have always been so.
int mesesAlAgregar(const QString &dosis);
int mesesAlEditar(const QString &dosis);

/// An age as the plan counts it: a month has 30 days here.
struct EdadDelPlan {
    qint64 meses = 0;                   ///< of life
    qint64 anios = 0, mesesDelAnio = 0; ///< the same as a person reads it
};
EdadDelPlan edadDelPlan(basic::Date nacimiento, basic::Date hoy);
/// The row whose line the band stands on: up to it a dose is overdue, below it a dose is yet to come.
int filaDeLaBanda(qint64 meses);

enum class Estado { SinEdad, Falta, Proxima, Indicada, Colocada };
QString leyenda(Estado estado); ///< empty while the age is not known

struct Marca {
    int fila = 0, columna = 0;
    int lugar = 0; ///< beside others of the same row and column
    DosisDelPlan dosis;
    Estado estado = Estado::SinEdad;
    std::optional<basic::Date> fecha; ///< when it was given or indicated
    bool vencida = false;             ///< its row is above the band, whatever is noted

    QString enPalabras() const; ///< vaccine, dose and state
};

struct Columna {
    QString descripcion, detalle;
};

/// The plan laid out on the sheet.
struct Planilla {
    static constexpr std::size_t columnasQueCaben = 12;

    std::vector<Columna> columnas;
    std::vector<Marca> marcas;
    int sinLugar = 0; ///< doses of a vaccine beyond the last column, or of an age without a row

    /// What each marker tells of a patient of that age; nothing while the age is not known. Throws
    /// dao::Error.
    void ponerEstados(qint64 paciente, const std::optional<EdadDelPlan> &edad);
};
Planilla planilla(const std::vector<DosisDelPlan> &plan);
/// The heads that the sheet has while the practice has no plan.
Planilla planillaSinPlan();

} // namespace vacunas
