#include "specialties/eye/lienzo.h"

#include "platform/forms/tag.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace oftalmo
{

namespace
{

constexpr int puntosDelRotulo = 10;
const QString deTextos = u"Label"_s, deSellos = u"Image"_s;
const QColor tinta(0x22, 0x33, 0x44);

int indiceDe(const CanvasItem &item)
{
    const QString nombre = item.name();
    const qsizetype abre = nombre.indexOf(u'(');
    return nombre.sliced(abre + 1, nombre.size() - abre - 2).toInt();
}

TextLook letras(const QString &texto)
{
    QFont letra;
    letra.setPointSize(puntosDelRotulo);
    return {texto, letra, 0, tinta};
}

} // namespace

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
    const QString nombre = nombreDeMarca(sello.indice);
    if (item(nombre))
        return;
    const auto paleta = plano().paleta;
    const auto conocido = std::ranges::find(paleta, sello.codigo, &dibujo::Simbolo::codigo);
    if (conocido != paleta.end()) {
        poner(static_cast<int>(conocido - paleta.begin()), sello.lugar, sello.indice);
        return;
    }
    CanvasItem &marca = add(nombre, sello.lugar, letras(sello.codigo));
    marca.setToolTip(u"Símbolo de otra versión: "_s + sello.codigo);
    marca.setMovable(editable_);
    forms::setTag(&marca, sello.codigo);
}

void Lienzo::rotular(const QString &texto, QPointF lugar, std::optional<int> numero)
{
    const QString nombre = u"%1(%2)"_s.arg(deTextos).arg(numero.value_or(numeroLibre(deTextos)));
    if (item(nombre))
        return;
    CanvasItem &rotulo = add(nombre, lugar, letras(texto));
    rotulo.setMovable(editable_);
    forms::setTag(&rotulo, u"TEXTO"_s);
}

Dibujo Lienzo::dibujo() const
{
    Dibujo hecho;
    for (const CanvasItem *item : all()) {
        if (item->name().startsWith(deSellos))
            hecho.sellos.push_back({indiceDe(*item), item->pos(), forms::tag(item)});
        else
            hecho.rotulos.push_back({indiceDe(*item), item->pos(), std::get<TextLook>(item->look()).text});
    }
    return hecho;
}

} // namespace oftalmo

#include "moc_lienzo.cpp"
