#pragma once

#include "core/session/eleccion.h"

#include <optional>
#include <vector>

/// The catalogues as choosers. Each opens its window modally, with the refusals and messages of its own, and
/// answers what was chosen.
namespace catalogos
{

using ports::Renglon;

/// Any number of symptoms; none when cancelled.
std::vector<Renglon> eligeSintomas();

/// One treatment, with the dose for the patient of this number in sight. The window has no cancel: closed
/// without accepting, it answers a blank line.
Renglon eligeTratamiento(const QString &paciente);

/// One diagnosis from the classifier of the setting "Clasificador patologico". Nothing when it was cancelled,
/// the classification is not allowed to the user, or what was chosen there is no disease.
std::optional<Renglon> eligeDiagnostico();

/// The same from the practice's own list, narrowed to a classification.
std::optional<Renglon> eligeDeLosPropios(const QString &clasificacion = {}, const QString &titulo = {});
/// The same from the international classification, behind its right, open at a node.
std::optional<Renglon> eligeEnCIE10(int nodo = 0);
/// From the practice's own list under the title when the setting is "PERSONAL", else from the classification
/// open at the chapter.
std::optional<Renglon> eligePatologia(const QString &titulo, int capitulo);

} // namespace catalogos
