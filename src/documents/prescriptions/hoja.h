#pragma once

#include "documents/prescriptions/recetario.h"
#include "platform/forms/canvas.h"

#include <QPageSize>

#include <array>

namespace recetario
{

/// The paper of the practice's prescriptions, and where on it the prescription itself is written.
struct Papel {
    QString nombre;
    QPageSize::PageSizeId pagina;
    QSizeF medida; ///< twips
    QRectF receta;
};
std::span<const Papel> papeles();
/// This workstation's.
const Papel &papelEnUso();
void usarPapel(const Papel &papel);

/// The sheet, `Picture2`: the places elem(0) to elem(31), of which those in use are seen, and `Picture1`.
class Hoja : public forms::Canvas
{
    Q_OBJECT
public:
    Hoja();

    /// The sheet is as large as the paper, and larger where something of it lies outside.
    void setPapel(const Papel &papel);
    const Papel &papel() const { return *papel_; }

    void mostrar(int numero, const Elemento &elemento, const QString &texto);
    void vaciar(); ///< all places free, no picture
    forms::CanvasItem &elem(int numero) { return *elementos_.at(static_cast<std::size_t>(numero)); }
    bool enUso(int numero) { return elem(numero).isVisible(); }
    /// The number of a place by its item's name; nothing for another item.
    std::optional<int> numeroDe(const QString &nombre) const;

    forms::CanvasItem &imagen() { return *imagen_; }
    /// Shows a picture as large as it was made, and no higher than half the head of the sheet. Throws
    /// basic::Error for a file that is none; the picture is then at its place, unseen.
    void mostrarImagen(const Imagen &imagen);

private:
    void medir();

    const Papel *papel_;
    std::array<forms::CanvasItem *, lugares> elementos_{};
    forms::CanvasItem *imagen_;
};

/// The letter of an element, under its own name.
QFont letra(const Elemento &elemento);

} // namespace recetario
