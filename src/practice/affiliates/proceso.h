#pragma once

#include "practice/affiliates/mapa.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

/// The merging of a coverage plan's roll into the register of patients.
namespace afiliados
{

struct Pedido {
    QString obraSocial, archivo;
    bool ensayo = false; ///< only counts what would happen
};

/// Why lines were not taken in: how many, and which was the first.
struct Motivo {
    qint64 lineas = 0, primera = 0;
};

struct Resumen {
    qint64 lineas = 0, nuevos = 0, modificados = 0, iguales = 0;
    qint64 recortados = 0; ///< texts longer than their column
    std::map<QString, Motivo> salteadas;
    QStringList desconocidas;
    QString letras;
    QString archivoDeSalteadas; ///< empty where none was skipped
    bool detenido = false;

    qint64 cantidadDeSalteadas() const;
    QString texto(bool ensayo) const; ///< as a person reads it
};

/// How many of all lines are done; false stops the run.
using Avance = std::function<bool(qint64 hechas, qint64 total)>;

/// Runs over the file, line by line; what is written stays whatever ends it. A line that cannot be taken in
/// is skipped, told, and left in a file beside the roll, as it stood. Throws basic::Error with what keeps all
/// lines from being read or written.
Resumen actualizar(const Pedido &pedido, const Mapa &mapa, const Avance &avance);

/// The first lines of a file, each cut by the map.
std::vector<QStringList> primerasLineas(const QString &archivo, const Mapa &mapa, int cantidad);

} // namespace afiliados
