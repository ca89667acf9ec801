#pragma once

#include <QString>

namespace catalogos
{

/// The address of a search for the text: in the place of "%1", or behind an address without one. Empty when
/// the address is none of the web.
QString direccionDeBusqueda(const QString &buscador, const QString &texto);

} // namespace catalogos
