#pragma once

#include "platform/forms/canvas.h"

#include <optional>
#include <span>

namespace sano
{

/// One of the six gross-motor milestones of the World Health Organization (2006): one child of a hundred
/// reaches it by `primero`, half of them by about `media`, ninety-nine by `ultimo`; months and days of life.
struct Hito {
    QString nombre;
    double mesesPrimero, mesesMedia, mesesUltimo;
    double primero, ultimo; ///< days
};
std::span<const Hito> hitos();

/// Where an age stands to the window of a milestone.
enum class Momento { Antes, Dentro, Despues };
Momento momento(const Hito &hito, double diasDeVida);

/// The six windows over two years of months, one `hito(n)` each, with a line at the child's age, `edad`, and
/// at the corrected one of a child born preterm, `edadCorregida`.
class VentanasMotoras : public forms::Canvas
{
    Q_OBJECT
public:
    explicit VentanasMotoras(const QString &nombre);

    /// An age beyond the picture has no line. The milestones are told by the corrected age where there is
    /// one.
    void mostrarEdad(double diasDeVida, const std::optional<double> &corregida);
    bool muestraEdad() const
    {
        return item(QStringLiteral("edad")) != nullptr;
    } ///< it lies within the picture

private:
    void trazar();
    void marcar(const QString &nombre, double dias, const QString &rotulo, const QColor &color, int renglon);
};

} // namespace sano
