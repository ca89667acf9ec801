#pragma once

#include <QString>
#include <QStringView>

class QComboBox;

/// Lists of choices filled from tables.
namespace services
{

/// Adds an entry a row that has a text, with the key column as the entry's data. Throws dao::Error.
void agregarConClave(QComboBox &lista, const QString &sql, QStringView campo, QStringView clave);

} // namespace services
