#pragma once

#include "specialties/drawing/diagrama.h"

#include <array>

namespace oftalmo
{

/// The two drawings of an eye visit: what the slit lamp shows, and the fundus.
enum class Clase { Biomicroscopia, Fondo };
inline constexpr std::array clases = {Clase::Biomicroscopia, Clase::Fondo};

/// Its background, both eyes as the examiner sees them, and its stamps in the colours of the field: red for
/// blood and vessels, blue for oedema and detachment, green for stains, vitreous and lens, yellow for
/// exudates, brown for the uvea, black for scars and pigment.
const dibujo::Plano &plano(Clase clase);

} // namespace oftalmo
