#pragma once

#include <span>

/// The items of the general physical examination, as the capture form shows and the table `ExFisico` keeps
/// them.
namespace examen
{

/// The boxes of the form, three to a page.
enum class Marco {
    Postural,
    Columna,
    MiembrosTronco,
    Torax,
    Abdomen,
    Neurologica,
    Oftalmologico,
    Cardiovascular,
    Electrocardiograma,
};
inline constexpr int marcosPorFicha = 3;
inline constexpr int fichas = 3;
const char *titulo(Marco marco);

struct Item {
    Marco marco;
    int indice;           ///< of its field on the form
    const char *etiqueta; ///< within its box
    /// The key that the history text and old records know the item by: stored as it stands, odd spellings
    /// included.
    const char *titulo;
};
/// In the order in which a person examines and types; not in the order of the indexes.
std::span<const Item> items();

} // namespace examen
