#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace MODULE11
{

/// Alarm marks: coloured objects of a patient's sheet, kept one row an object. The colours are yellow, red
/// and green, as values with red in the low byte. All three operations pass errors of the engine to the
/// caller.

/// One click on a tagged object: marks it yellow, or moves its mark on (yellow, red, green, yellow...), and
/// paints it.
void AsignaAlarma(qint64 idPaciente, const QString &especialidad, const QString &tema, QWidget &objeto);

/// The colour value of a mark; empty where there is none.
std::optional<int> ColorAlarma(qint64 idPaciente, const QString &especialidad, const QString &tema,
                               const QString &objeto);

/// Paints every control of the window whose tag is "ALARMA" and that the patient has a mark on; the others
/// keep the colour they have.
void PintaAlarmas(QWidget &formulario, qint64 idPaciente);

} // namespace MODULE11
