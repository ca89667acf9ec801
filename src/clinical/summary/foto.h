#pragma once

#include <QString>

namespace clinical
{

/// Asks for a picture and keeps it as the patient's photo in `archivo`, at most so wide and high; false when
/// it was cancelled. Throws basic::Error for what is no picture, or cannot be written.
bool cambiaFoto(const QString &archivo, int mayorLado);

} // namespace clinical
