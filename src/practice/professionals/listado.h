#pragma once

namespace practice
{

/// Prints the table of professionals on the printer that the person chooses. Throws basic::Error when the
/// printer refuses.
void imprimeProfesionales();

} // namespace practice
