#pragma once

#include <QString>

#include <optional>

namespace oftalmo
{

/// A refraction as it is written: sphere, cylinder and axis.
struct Refraccion {
    double esfera = 0, cilindro = 0;
    int eje = 0; ///< degrees, 1 to 180; 0 without a cylinder

    double equivalenteEsferico() const { return esfera + cilindro / 2; }
    /// The same lens with the cylinder of the other sign.
    Refraccion transpuesta() const;
    bool operator==(const Refraccion &) const = default;
};

/// Reads "+1,25 -0.50 x 90", "-2 -1 a 180°", "neutro -0,75 x 10", "-1,50 esf"; nothing of what is not one.
std::optional<Refraccion> refraccionDe(const QString &texto);
/// "+1,25 -0,50 x 90°".
QString enPalabras(const Refraccion &refraccion);
/// "E.E. +1,00   Transp. +0,75 +0,50 x 180°"; empty for what is no refraction.
QString cuentaDe(const QString &texto);

/// The acuity as a fraction of one: of "8/10", "20/40" and "0,8"; 0 of the words for less than can be
/// measured; nothing of any other text.
std::optional<double> agudezaDe(const QString &texto);
/// The number at the start of a pressure, "16 mmHg".
std::optional<double> presionDe(const QString &texto);

/// Best first, the words last.
QStringList escalaDeAgudeza();

} // namespace oftalmo
