#pragma once

#include "platform/dao/recordset.h"

#include <QString>

#include <optional>
#include <vector>

/// The articles of each professional, what there is of them, and what came in and went out.
namespace stock
{

inline const QString todos = QStringLiteral("<Todos>");

enum class Sentido { Entrada, Salida };

struct Renglon {
    qint64 idArticulo = 0;
    double cantidad = 0; ///< as typed, whatever the sense
};

/// Articles that came in or went out together, on one paper.
struct Movimiento {
    Sentido sentido = Sentido::Entrada;
    basic::Date fecha;
    qint64 idTipo = 0;
    QString comprobante;
    std::vector<Renglon> renglones;
};

/// Writes the rows and moves the stock of their articles. Each stock changes in one statement of its own, so
/// that the movements of two stations add up.
void registrar(const Movimiento &movimiento);

/// How much, as a person types it; nothing for what is no quantity above nought.
std::optional<double> cantidad(const QString &escrita);

/// The articles of a professional with the names of their group, unit and supplier, by description.
QString articulos(qint64 idProfesional);

/// Which movements are looked at; what is not set takes all.
struct Filtro {
    qint64 idProfesional = 0;
    basic::Date desde, hasta; ///< both included, with their hours
    std::optional<qint64> idArticulo = {}, idTipo = {};
};
QString movimientos(const Filtro &filtro);

/// With all its movements.
void borrarArticulo(qint64 idArticulo);

/// What the reports select: all articles of a professional, and those that there are fewer of than there must
/// be.
QString seleccion(qint64 idProfesional);
QString seleccionDeFaltantes(qint64 idProfesional);

} // namespace stock
