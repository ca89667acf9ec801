#include "specialties/cardiology/dibujoDeTorax.h"

#include "core/services/panIdato.h"
#include "core/services/services.h"
#include "platform/forms/drag.h"
#include "platform/forms/twips.h"

#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;
using torax::Elemento;

namespace
{

constexpr double lado = 450; ///< of an arrow, in twips
constexpr int ladoDelIcono = 22;
constexpr const char *direcciones[torax::flechas] = {
    "arriba", "arriba a la derecha",  "a la derecha",   "abajo a la derecha",
    "abajo",  "abajo a la izquierda", "a la izquierda", "arriba a la izquierda"};

QString flecha(int simbolo)
{
    return u":/corazon/flecha%1.svg"_s.arg(simbolo);
}

} // namespace

DibujoDeTorax::DibujoDeTorax(const QString &fondo)
    : Picture1(u"Picture1"_s, Picture(u":/corazon/%1.svg"_s.arg(fondo)).sizeTwips())
{
    Picture1.loadBackground(u":/corazon/%1.svg"_s.arg(fondo));
    agregarPaleta();
    connect(&Picture1, &Canvas::dropped, this,
            [this](const QWidget *origen, QPointF lugar) { usar(*origen, lugar); });
    connect(&Picture1, &Canvas::clicked, this, [this](const QString &elemento) {
        Picture1.remove(elemento);
        cambiado_ = true;
    });
    connect(&Picture1, &Canvas::moved, this, [this] { cambiado_ = true; });
}

/// With the keyboard an element goes to the middle of the picture; from there it is moved like any other.
void DibujoDeTorax::agregarPaleta()
{
    const auto preparar = [this](CommandButton &icono, const QString &ayuda) {
        icono.setToolTip(ayuda);
        icono.setAutoDefault(false);
        makeDraggable(icono);
        connect(&icono, &QPushButton::clicked, this, [this, &icono] {
            const QSizeF hoja = Picture1.sizeTwips();
            usar(icono, QPointF(hoja.width(), hoja.height()) / 2);
        });
    };
    for (int i = 0; i < torax::flechas; ++i) {
        CommandButton &icono = Image2.add(i, QString());
        icono.setIcon(QIcon(flecha(i + 1)));
        icono.setIconSize({ladoDelIcono, ladoDelIcono});
        icono.setAccessibleName(u"Flecha "_s + QString::fromUtf8(direcciones[i]));
        preparar(icono, u"Coloca una flecha en un lugar preciso"_s);
    }
    preparar(Label5, u"Coloca un texto o etiqueta en un lugar especifico"_s);
}

Item DibujoDeTorax::disponer()
{
    std::vector<Item> iconos;
    for (const auto &[i, icono] : Image2)
        iconos.emplace_back(*icono);
    iconos.emplace_back(Label5);
    iconos.push_back(Stretch());
    return Column{Expanding(Picture1), Row(iconos)};
}

void DibujoDeTorax::habilitar(bool habilitado)
{
    Picture1.setEnabled(habilitado);
    Label5.setEnabled(habilitado);
    for (const auto &[i, icono] : Image2)
        icono->setEnabled(habilitado);
}

std::optional<int> DibujoDeTorax::indiceLibre(QStringView nombre) const
{
    for (int indice = 0; indice <= torax::mayorIndice; ++indice)
        if (!Picture1.item(u"%1(%2)"_s.arg(nombre).arg(indice)))
            return indice;
    return std::nullopt;
}

/// Only the palette's elements are taken.
void DibujoDeTorax::usar(const QWidget &origen, QPointF lugar)
{
    if (&origen == &Label5) {
        ponerTexto(lugar);
        return;
    }
    for (const auto &[i, icono] : Image2) {
        if (icono.get() != &origen)
            continue;
        if (const auto indice = indiceLibre(u"Image1")) {
            poner({*indice, lugar - QPointF(lado, lado) / 2, i + 1});
            cambiado_ = true;
        } else {
            MODULE11::MuestraError(u"El diagrama no lleva más de cien flechas."_s);
        }
    }
}

void DibujoDeTorax::ponerTexto(QPointF lugar)
{
    const auto indice = indiceLibre(u"Label4");
    if (!indice) {
        MODULE11::MuestraError(u"El diagrama no lleva más de cien textos."_s);
        return;
    }
    panIdato pregunta;
    pregunta.Label1.setCaption(u"&Texto :"_s);
    pregunta.Label2.hide();
    pregunta.Combo1.hide();
    pregunta.showModal();
    const QString texto = pregunta.Text1.text().trimmed();
    if (pregunta.tag() != u"SI" || texto.isEmpty())
        return;
    poner({*indice, lugar, 0, texto});
    cambiado_ = true;
}

/// The left of an element is never outside the picture: the file has no sign for it.
void DibujoDeTorax::poner(const Elemento &elemento)
{
    const QString nombre = u"%1(%2)"_s.arg(elemento.simbolo ? u"Image1"_s : u"Label4"_s).arg(elemento.indice);
    if (Picture1.item(nombre))
        return;
    const QPointF lugar(std::max(elemento.lugar.x(), 0.0), elemento.lugar.y());
    QFont letra = QApplication::font();
    letra.setBold(true);
    const Look aspecto = elemento.simbolo
                             ? Look(PictureLook{Picture(flecha(elemento.simbolo)), QSizeF(lado, lado)})
                             : Look(TextLook{elemento.texto, letra, 0, QColor(0x9c, 0x1c, 0x1c)});
    CanvasItem &item = Picture1.add(nombre, lugar, aspecto);
    item.setMovable(true);
    if (elemento.simbolo) {
        forms::setTag(&item, u"%1"_s.arg(elemento.simbolo, 2, 10, QChar(u'0')));
        item.setAccessibleName(u"Flecha "_s + QString::fromUtf8(direcciones[elemento.simbolo - 1]));
    }
}

void DibujoDeTorax::mostrar(const std::vector<Elemento> &elementos)
{
    Picture1.clear();
    for (const Elemento &elemento : elementos)
        poner(elemento);
    cambiado_ = false;
}

std::vector<Elemento> DibujoDeTorax::elementos() const
{
    std::vector<Elemento> todos;
    for (const CanvasItem *item : Picture1.all()) {
        const QString nombre = item->name();
        const int indice = nombre.sliced(nombre.indexOf(u'(') + 1).chopped(1).toInt();
        const auto *texto = std::get_if<TextLook>(&item->look());
        todos.push_back({indice, item->pos(), forms::tag(item).toInt(), texto ? texto->text : QString()});
    }
    return todos;
}

#include "moc_dibujoDeTorax.cpp"
