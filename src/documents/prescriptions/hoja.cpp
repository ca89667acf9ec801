#include "documents/prescriptions/hoja.h"

#include "platform/basic/environment.h"
#include "platform/forms/tag.h"
#include "platform/settings/settings.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace forms;

namespace recetario
{

namespace
{

const QString seccion = u"Configuracion"_s;
const QString clave = u"Papel de la receta"_s;
constexpr double delante = 1; ///< the elements lie upon the picture

QString nombreDeElemento(int numero)
{
    return u"elem(%1)"_s.arg(numero);
}

} // namespace

std::span<const Papel> papeles()
{
    static const Papel todos[] = {
        {u"Hoja entera (A4)"_s, QPageSize::A4, {11906, 16838}, {1000, 4300, 9906, 9000}},
        {u"Media hoja (A5)"_s, QPageSize::A5, {8391, 11906}, {700, 3300, 6991, 5900}},
    };
    return todos;
}

const Papel &papelEnUso()
{
    const QString nombre = settings::getSetting(seccion, clave);
    for (const Papel &papel : papeles())
        if (papel.nombre == nombre)
            return papel;
    return papeles().front();
}

void usarPapel(const Papel &papel)
{
    settings::saveSetting(seccion, clave, papel.nombre);
}

QFont letra(const Elemento &elemento)
{
    QFont fuente;
    if (!elemento.fuente.isEmpty())
        fuente.setFamilies({elemento.fuente}); // a comma in the name is part of it
    fuente.setPointSize(elemento.cuerpo);
    fuente.setBold(elemento.negrita);
    fuente.setItalic(elemento.italica);
    fuente.setUnderline(elemento.subrayado);
    return fuente;
}

Hoja::Hoja() : Canvas(u"Picture2"_s, papelEnUso().medida), papel_(&papelEnUso())
{
    imagen_ = &add(u"Picture1"_s, {}, PictureLook{});
    imagen_->setVisible(false);
    imagen_->setMovable(true);
    for (int numero = 0; numero < lugares; ++numero) {
        CanvasItem &elemento = add(nombreDeElemento(numero), {}, TextLook{});
        elemento.setVisible(false);
        elemento.setMovable(true);
        elemento.setZValue(delante);
        elementos_[static_cast<std::size_t>(numero)] = &elemento;
    }
}

void Hoja::setPapel(const Papel &papel)
{
    papel_ = &papel;
    medir();
}

void Hoja::medir()
{
    QRectF todo(QPointF(), papel_->medida);
    for (const CanvasItem *item : all())
        if (item->isVisible())
            todo = todo.united(item->place());
    setSizeTwips({todo.right(), todo.bottom()});
}

void Hoja::mostrar(int numero, const Elemento &elemento, const QString &texto)
{
    CanvasItem &item = elem(numero);
    item.setLook(TextLook{texto, letra(elemento)});
    item.setPos(elemento.lugar);
    item.setVisible(true);
    medir();
}

void Hoja::vaciar()
{
    for (CanvasItem *item : elementos_)
        item->setVisible(false);
    imagen_->setVisible(false);
    setTag(imagen_, {});
    medir();
}

std::optional<int> Hoja::numeroDe(const QString &nombre) const
{
    for (int numero = 0; numero < lugares; ++numero)
        if (nombre == nombreDeElemento(numero))
            return numero;
    return std::nullopt;
}

void Hoja::mostrarImagen(const Imagen &imagen)
{
    imagen_->setPos(imagen.lugar);
    setTag(imagen_, imagen.archivo);
    imagen_->setVisible(false);
    if (imagen.archivo.isEmpty())
        return;
    const Picture dibujo(basic::programFile(imagen.archivo));
    QSizeF medida = dibujo.sizeTwips();
    const QSizeF lugar = {papel_->medida.width(), papel_->receta.top() / 2};
    if (medida.width() > lugar.width() || medida.height() > lugar.height())
        medida.scale(lugar, Qt::KeepAspectRatio);
    imagen_->setLook(PictureLook{dibujo, medida});
    imagen_->setVisible(true);
    medir();
}

} // namespace recetario

#include "moc_hoja.cpp"
