#pragma once

#include "clinical/family/antecedentes.h"
#include "platform/forms/canvas.h"

namespace familia
{

/// The family tree as a picture: the patient's box `paciente` and one box ssp(n) for each relative, with its
/// figure, how many conditions it has, and over it the mark RIP(n) of those who died.
class ArbolFamiliar : public forms::Canvas
{
    Q_OBJECT
public:
    ArbolFamiliar();

    void mostrarPaciente(const QString &nombre, const QString &sexo);
    void mostrar(int numero, const Antecedentes &antecedentes);
    /// The number of a relative by its box's name; nothing for another item.
    std::optional<int> numeroDe(const QString &caja) const;

private:
    forms::CanvasItem &inerte(const QString &nombre, QPointF lugar, forms::Look aspecto, double altura);
    void dibujarRama(const QString &nombre, double izquierda, const QColor &color);
    void dibujarLineas();
    void dibujarPariente(int numero);
    void dibujarPaciente();
    forms::CanvasItem &parte(const QString &nombre, int numero) const;
};

} // namespace familia
