#pragma once

#include <QString>

#include <optional>

/// Asks for a patient in the register; nothing when none was chosen.
std::optional<qint64> EligePaciente();
/// Asks for a surname and names to look for; empty when cancelled.
QString PideNombreDePaciente();
