#pragma once

class QComboBox;

namespace stock
{

/// The lists of articles are long: a field is not measured by all its entries.
void ancho(QComboBox &lista);
/// Adds the articles of a professional by their description, each with its key; beside them, in `codigos` if
/// it is given, their codes in the same order.
void agregarArticulos(QComboBox &lista, long long idProfesional, QComboBox *codigos = nullptr);

} // namespace stock
