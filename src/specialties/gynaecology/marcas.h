#pragma once

#include <QPointF>
#include <QStringView>

#include <span>
#include <vector>

/// The drawn findings of a gynaecological examination.
namespace gineco
{

/// A symbol of a palette; its place in it is its index.
struct Simbolo {
    QStringView dibujo; ///< :/gineco/<dibujo>.svg
    QStringView termino;
};

/// A diagram with its palette.
struct Diagrama {
    QStringView fondo;  ///< :/gineco/<fondo>.svg
    QStringView titulo; ///< of the palette
    std::span<const Simbolo> paleta;
};
/// The neck of the womb, with the findings in the terms of the international federation of 2011.
const Diagrama &cuello();
const Diagrama &mamas();

/// A symbol on the diagram, by its top left corner in twips.
struct Marca {
    int indice;
    QPointF lugar;
    bool operator==(const Marca &) const = default;
};

/// What is drawn on an examination. Throws dao::Error.
std::vector<Marca> marcasDe(qint64 examen);
/// In the place of what was there.
void guardarMarcas(qint64 examen, const std::vector<Marca> &marcas);

} // namespace gineco
