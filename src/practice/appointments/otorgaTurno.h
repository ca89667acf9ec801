#pragma once

#include <QtGlobal>

#include <optional>

/// Books the next appointment of a patient, from today on, in whatever free place of the book has the day and
/// hour chosen. Without a patient the dialogue asks for one.
void OtorgaTurno(std::optional<qint64> paciente);
