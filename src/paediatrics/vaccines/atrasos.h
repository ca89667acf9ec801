#pragma once

#include "paediatrics/vaccines/edades.h"
#include "paediatrics/vaccines/planilla.h"

#include <functional>

/// Children late for their vaccines.
namespace vacunas
{

/// The doses of a sheet that are overdue and not given, and that the plan wants for this patient, in words.
/// Throws dao::Error.
QStringList dosisQueFaltan(const Planilla &planilla, qint64 paciente);

/// Which children to look for.
struct Busqueda {
    QString descripcion = {};            ///< of a vaccine; empty for all
    int desdeAnios = 0, hastaAnios = 17; ///< completed years of age, both included
    int diasDeAtraso = 1;                ///< late for at least so long
};

/// The practice's children who are late for a dose of the plan, a line for each dose: by vaccine and age.
/// Read once; what is noted afterwards does not change it.
class Atrasos
{
public:
    /// Told of the doses of the plan that have been looked at; false stops it.
    using Avance = std::function<bool(qint64 dosis, qint64 todas)>;

    /// Nothing when it was stopped. Throws dao::Error.
    static std::optional<Atrasos> buscar(const Busqueda &busqueda, basic::Date hoy,
                                         const Avance &avance = {});

    qint64 cuantos() const { return static_cast<qint64>(renglones_.size()); }
    int ninos() const; ///< how many children that is

    enum Columna { DeVacuna, DeDosis, DePaciente, DeEdad, DeAtraso, DeTelefono, DeEstado };
    static const QStringList &titulos(); ///< of the columns
    /// What stands in a column of a line.
    basic::Value valor(qint64 renglon, int columna) const;
    qint64 paciente(qint64 renglon) const;

private:
    struct Nino {
        qint64 numero;
        basic::Date nacimiento;
        qint64 fila; ///< among the patients read
    };
    struct Renglon {
        std::size_t nino, dosis;
        int dias;
        bool indicada;
    };
    struct Dada {
        int dia = 0; ///< whole days; 0 where the dose is not given
        bool indicada = false;
    };

    void leerNinos(const Busqueda &busqueda);
    std::vector<Dada> dadas(const DosisDelPlan &dosis) const;
    /// The lines of one dose. `ultimas` has the last day on which the vaccine was given to each child before.
    std::vector<Renglon> comparar(std::size_t dosis, const std::vector<Dada> &dadas,
                                  const std::vector<int> &ultimas, int diasDeAtraso) const;

    basic::Date hoy_;
    std::vector<DosisDelPlan> plan_;
    std::vector<EdadDeDosis> edades_;
    dao::Recordset pacientes_;
    std::vector<Nino> ninos_;          ///< by number
    std::vector<std::size_t> porEdad_; ///< the same from the youngest
    std::vector<Renglon> renglones_;
};

} // namespace vacunas
