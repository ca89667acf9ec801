#pragma once

#include "figures/catalogo.h"
#include "figures/grafico.h"
#include "platform/basic/value.h"

#include <functional>
#include <optional>
#include <span>

namespace figures
{

/// Whom a prevalence is asked of. An index is that of its list.
struct Seleccion {
    QString sexo; ///< "Varon", "Mujer" or "Ambos"
    QString edad; ///< "Todos" or a group
    enum class Rango { Todos, EsteAnio, AnioPasado, EsteMes } rango = Rango::Todos;
    QString consulta; ///< "Todas", "1º vez" or "Ulterior"
};

/// A group of ages by days of life.
struct GrupoDeEdad {
    const char *nombre, *porcion; ///< in the list, and in the chart
    int desde, hasta;
};
std::span<const GrupoDeEdad> gruposDeEdad();
/// The group of an age; nothing before birth.
std::optional<int> grupoDe(qint64 dias);

/// The conditions of the selection, over the visits and over the patients.
QString condicionDeVisitas(const Seleccion &seleccion, basic::Date hoy);
QString condicionDePacientes(const Seleccion &seleccion, basic::Date hoy);

/// Where diagnoses are counted.
struct Fuente {
    const char *nombre, *tabla, *columna, *titulo;
};
/// The first is the visits; the others are asked of the patients.
std::span<const Fuente> fuentesDeDiagnosticos();

/// How far the work is; false stops it.
using Avance = std::function<bool(qint64 hechos)>;

Figura porSexo(const Seleccion &seleccion, basic::Date hoy);
Figura porEdades(const Seleccion &seleccion, basic::Date hoy);
/// The ten names of the catalogue that the visits name most, and the others together. The catalogue's counter
/// holds the counts afterwards. Nothing when it was stopped.
std::optional<Figura> porNombre(Nombrado que, const Seleccion &seleccion, basic::Date hoy,
                                const Avance &avance);
/// The same over what the patients' records hold.
Figura porFuente(int fuente, const Seleccion &seleccion, basic::Date hoy);

} // namespace figures
