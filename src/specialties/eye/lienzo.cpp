#include "specialties/eye/lienzo.h"

#include "platform/forms/tag.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace oftalmo
{

Lienzo::Lienzo(const QString &nombre, Clase clase) : Diagrama(nombre, oftalmo::plano(clase))
{
    setMinimumSize(470, 220);
    setFrameShape(QFrame::NoFrame);
}

void Lienzo::resizeEvent(QResizeEvent *event)
{
    Diagrama::resizeEvent(event);
    fit();
}

void Lienzo::mostrar(const Dibujo &dibujo)
{
    clear();
    for (const Sello &sello : dibujo.sellos)
        sellar(sello);
    for (const Rotulo &rotulo : dibujo.rotulos)
        rotular(rotulo.texto, rotulo.lugar, rotulo.indice);
}

/// A stamp that this version does not know is shown by its letters, and so kept.
void Lienzo::sellar(const Sello &sello)
{
    const auto paleta = plano().paleta;
    const auto conocido = std::ranges::find(paleta, sello.codigo, &dibujo::Simbolo::codigo);
    if (conocido != paleta.end()) {
        poner(static_cast<int>(conocido - paleta.begin()), sello.lugar, sello.indice);
        return;
    }
    const QString nombre = nombreDeMarca(sello.indice);
    if (item(nombre))
        return;
    CanvasItem &marca = add(nombre, sello.lugar, dibujo::letras(sello.codigo));
    marca.setToolTip(u"Símbolo de otra versión: "_s + sello.codigo);
    marca.setMovable(editable());
    forms::setTag(&marca, sello.codigo);
}

void Lienzo::rotular(const QString &texto, QPointF lugar, std::optional<int> numero)
{
    if (CanvasItem *rotulo = Diagrama::rotular(texto, lugar, numero))
        forms::setTag(rotulo, u"TEXTO"_s);
}

Dibujo Lienzo::dibujo() const
{
    Dibujo hecho;
    for (const CanvasItem *item : all()) {
        if (item->name().startsWith(plano().marca))
            hecho.sellos.push_back({numeroDe(*item), item->pos(), forms::tag(item)});
        else
            hecho.rotulos.push_back({numeroDe(*item), item->pos(), std::get<TextLook>(item->look()).text});
    }
    return hecho;
}

} // namespace oftalmo

#include "moc_lienzo.cpp"
