#pragma once

#include "documents/listings/selecciones.h"
#include "platform/forms/controls.h"

/// What the windows of reports read from their fields.
namespace seleccion
{

/// The days between the two fields; nothing, once told, when the second comes before the first.
std::optional<Periodo> periodoElegido(forms::DTPicker &desde, forms::DTPicker &hasta);

/// A filter whose first entry stands for all: nothing then, else the text or the key of the entry chosen.
std::optional<QString> textoElegido(const forms::ComboBox &filtro);
std::optional<qint64> claveElegida(const forms::ComboBox &filtro);

} // namespace seleccion
