#pragma once

#include "platform/forms/canvas.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

#include <span>

/// Findings drawn with the symbols of a palette.
namespace dibujo
{

/// A symbol of a palette; its place in it is its index.
struct Simbolo {
    QStringView dibujo; ///< :/<folder>/<dibujo>.svg
    QStringView termino;
    QStringView codigo = {}; ///< the tag of its marks; its index without one
};

/// What a diagram is made of.
struct Plano {
    QStringView carpeta, fondo; ///< :/<folder>/<background>.svg
    QStringView titulo;         ///< of the palette
    std::span<const Simbolo> paleta;
    QStringView icono;      ///< name of the palette's buttons
    QStringView marca;      ///< name of the marks on the diagram
    QStringView rotulo{};   ///< name of the texts on it
    QStringView ayuda{};    ///< what the palette's buttons say; without it each says its symbol's term
    QStringView etiqueta{}; ///< the tag of the palette's buttons
    double lado = 360;      ///< of a mark, in twips
    bool fija = false;      ///< what was dropped is moved by the keys alone
};

/// A diagram on which the symbols of a palette and texts are dropped. A mark is moved by the keys and, unless
/// the plan is fixed, by the mouse; how it is taken away is the window's to say.
class Diagrama : public forms::Canvas
{
    Q_OBJECT
public:
    Diagrama(const QString &nombre, const Plano &plano);

    /// The palette, to be laid out once. Without it the diagram is only looked at.
    forms::Item paleta(int porRenglon);
    /// What a symbol of the palette does where it is dropped; it is put there unless the window says
    /// otherwise.
    void setPonedor(std::function<void(int simbolo, QPointF)> ponedor) { ponedor_ = std::move(ponedor); }
    /// Another button of the palette. Dropped, or pressed, `usar` gets the place.
    void agregarIcono(const QString &icono, const QString &termino, std::function<void(QPointF)> usar);
    /// Any button, laid out by its window, that is used like those of the palette.
    void agregarHerramienta(forms::CommandButton &boton, std::function<void(QPointF)> usar);

    /// A mark of the palette's symbol, under that number or the next free one: those of marks that were taken
    /// away are used again. Null for a symbol that the palette has not, and for a number that is taken.
    forms::CanvasItem *poner(int simbolo, QPointF lugar, std::optional<int> numero = {});
    /// A text, likewise, under a number among the texts.
    forms::CanvasItem *rotular(const QString &texto, QPointF lugar, std::optional<int> numero = {});
    int numeroLibre(QStringView nombre) const;
    QString nombreDeMarca(int numero) const;
    static int numeroDe(const forms::CanvasItem &marca);

protected:
    /// It has tools: what stands on it can be moved.
    bool editable() const { return !usos_.empty(); }

    const Plano &plano() const { return plano_; }

private:
    QString archivo(QStringView dibujo) const;
    void soltar(const QWidget &origen, QPointF lugar);

    const Plano &plano_;
    std::function<void(int simbolo, QPointF)> ponedor_ = [this](int simbolo, QPointF lugar) {
        poner(simbolo, lugar);
    };
    forms::ControlArray<forms::CommandButton> iconos_;
    std::map<const QWidget *, std::function<void(QPointF)>> usos_;
};

/// How a text stands on a diagram.
forms::TextLook letras(const QString &texto);
/// The picture of a resource, read once.
const forms::Picture &figura(const QString &archivo);

} // namespace dibujo
