#pragma once

#include "platform/basic/value.h"
#include "platform/dao/schema.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Where each field of an affiliate stands in a line of the roll, as the practice has set it in
/// `CamposImport`.
namespace afiliados
{

struct Campo {
    QString columna;                 ///< of `Pacientes`, without brackets
    qint64 posicion = 0, tamano = 0; ///< in characters, the first being 1
    dao::FieldType tipo = dao::FieldType::Text;
    int largo = 0; ///< of a text; 0 for any
};

struct Mapa {
    std::vector<Campo> campos;
    std::optional<Campo> clave;
    QStringList desconocidas; ///< columns that the table of this file has not

    bool vacio = true; ///< it has no rows
    bool claveDefinida() const { return clave && clave->posicion > 0 && clave->tamano > 0; }
};

/// The map as it is set now. Throws dao::Error.
Mapa leerMapa();

/// The field's characters in a line; short or empty where the line ends before.
QString cortar(const QString &linea, const Campo &campo);

/// What a text of the roll is stored as.
struct Lectura {
    basic::Value valor;   ///< Null: the column stays as it is
    bool cortado = false; ///< it was longer than the column
    QString rechazo = {}; ///< why it cannot be stored; empty where it can
};
Lectura leer(const QString &texto, const Campo &campo);

} // namespace afiliados
