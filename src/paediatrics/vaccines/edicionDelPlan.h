#pragma once

namespace forms
{
class Data;
}

/// How the rows of the practice's plan are written by a person, in whatever window shows them.
namespace vacunas
{

/// Takes a new dose in and adds it to the rows of the plan. Throws dao::Error.
void agregarDosis(forms::Data &plan);
/// Lets the current dose be changed. Throws dao::Error.
void editarDosis(forms::Data &plan);

} // namespace vacunas
