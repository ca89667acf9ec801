#pragma once

#include <QRgb>
#include <QStringView>

#include <array>
#include <span>

/// The operative risk: a grid of factors, a row each, and the five classes that their sum leads to.
namespace riesgoOperatorio
{

inline constexpr int filas = 14;
inline constexpr std::array puntosDeColumna{0, 1, 2, 4, 8, 16};

struct Celda {
    int fila, puntos;
    QStringView texto;
};
/// Row by row.
std::span<const Celda> celdas();

struct Clase {
    QStringView nombre;
    int desde;
    QRgb color;
};
std::span<const Clase> clases();
/// The last class whose limit a total reaches.
int claseDe(int total);

} // namespace riesgoOperatorio
