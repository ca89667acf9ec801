#pragma once

#include <QString>

#include <optional>

namespace MODULE11
{

/// The condition on `Pacientes` that leaves those whom the session's professional may see: " true " for all
/// of them, or the own ones. Nothing, after telling so in a box, when the professional's policy was never
/// settled. A name that is no professional's, or that fails the statement, has no policy and sees all.
std::optional<QString> FiltroDePacientes();

} // namespace MODULE11
