#pragma once

#include <QStringView>

#include <span>
#include <vector>

/// The gestational risk: forty-two boxes that weigh the same.
namespace riesgoGestacional
{

inline constexpr int casillas = 42;

struct Casilla {
    int indice;
    QStringView texto;
};
struct Grupo {
    QStringView titulo;
    std::span<const Casilla> casillas;
};
std::span<const Grupo> grupos();

double puntaje(int marcadas);

/// A field of the bar under the score, in twips.
struct Campo {
    QStringView nombre;
    double desde, hasta;
    unsigned color; ///< QRgb
};
std::span<const Campo> barra();
/// Where the marker stands, in twips.
double lugarDelMarcador(double puntaje);

/// As it is stored: "X" for a box that is marked and "_" for one that is not, in order. A list that was
/// stored shorter leaves the rest clear.
QString enTexto(const std::vector<bool> &marcadas);
std::vector<bool> deTexto(const QString &valor);

} // namespace riesgoGestacional
