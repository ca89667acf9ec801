#pragma once

#include "specialties/drawing/diagrama.h"

/// The drawn findings of a gynaecological examination.
namespace gineco
{

/// The neck of the womb, with the findings in the terms of the international federation of 2011.
const dibujo::Plano &cuello();
const dibujo::Plano &mamas();

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
