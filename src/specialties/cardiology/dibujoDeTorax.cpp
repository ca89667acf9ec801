#include "specialties/cardiology/dibujoDeTorax.h"

#include "core/services/panIdato.h"
#include "core/services/services.h"
#include "platform/forms/tag.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;
using torax::Elemento;

namespace
{

constexpr dibujo::Simbolo porDireccion[torax::flechas] = {
    {u"flecha1", u"Flecha arriba", u"01"},         {u"flecha2", u"Flecha arriba a la derecha", u"02"},
    {u"flecha3", u"Flecha a la derecha", u"03"},   {u"flecha4", u"Flecha abajo a la derecha", u"04"},
    {u"flecha5", u"Flecha abajo", u"05"},          {u"flecha6", u"Flecha abajo a la izquierda", u"06"},
    {u"flecha7", u"Flecha a la izquierda", u"07"}, {u"flecha8", u"Flecha arriba a la izquierda", u"08"},
};

constexpr dibujo::Plano plano(QStringView fondo)
{
    return {.carpeta = u"corazon",
            .fondo = fondo,
            .titulo = u"Flechas",
            .paleta = porDireccion,
            .icono = u"Image2",
            .marca = u"Image1",
            .rotulo = u"Label4",
            .ayuda = u"Coloca una flecha en un lugar preciso",
            .lado = 450};
}
constexpr dibujo::Plano planos[] = {plano(u"torax"), plano(u"rx")};

} // namespace

DibujoDeTorax::DibujoDeTorax(Fondo fondo) : Diagrama(u"Picture1"_s, planos[static_cast<int>(fondo)])
{
    setPonedor([this](int simbolo, QPointF lugar) { ponerFlecha(simbolo, lugar); });
    agregarHerramienta(Label5, [this](QPointF lugar) { ponerTexto(lugar); });
    Label5.setToolTip(u"Coloca un texto o etiqueta en un lugar especifico"_s);
    connect(this, &Canvas::clicked, this, [this](const QString &elemento) {
        remove(elemento);
        cambiado_ = true;
    });
    connect(this, &Canvas::moved, this, [this] { cambiado_ = true; });
}

Item DibujoDeTorax::disponer()
{
    return Column{Expanding(*this), Row{paleta(torax::flechas), Label5, Stretch()}};
}

bool DibujoDeTorax::hayLugarPara(QStringView nombre, const QString &aviso) const
{
    const bool hay = numeroLibre(nombre) <= torax::mayorIndice;
    if (!hay)
        MODULE11::MuestraError(aviso);
    return hay;
}

void DibujoDeTorax::ponerFlecha(int simbolo, QPointF lugar)
{
    if (!hayLugarPara(plano().marca, u"El diagrama no lleva más de cien flechas."_s))
        return;
    poner(simbolo, lugar);
    cambiado_ = true;
}

void DibujoDeTorax::ponerTexto(QPointF lugar)
{
    if (!hayLugarPara(plano().rotulo, u"El diagrama no lleva más de cien textos."_s))
        return;
    panIdato pregunta;
    pregunta.Label1.setCaption(u"&Texto :"_s);
    pregunta.Label2.hide();
    pregunta.Combo1.hide();
    pregunta.showModal();
    const QString texto = pregunta.Text1.text().trimmed();
    if (pregunta.tag() != u"SI" || texto.isEmpty())
        return;
    rotular(texto, lugar);
    cambiado_ = true;
}

/// The left of an element is never outside the picture: the file has no sign for it.
void DibujoDeTorax::mostrar(const std::vector<Elemento> &elementos)
{
    clear();
    for (const Elemento &elemento : elementos) {
        const QPointF lugar(std::max(elemento.lugar.x(), 0.0), elemento.lugar.y());
        if (elemento.simbolo)
            poner(elemento.simbolo - 1, lugar, elemento.indice);
        else
            rotular(elemento.texto, lugar, elemento.indice);
    }
    cambiado_ = false;
}

std::vector<Elemento> DibujoDeTorax::elementos() const
{
    std::vector<Elemento> todos;
    for (const CanvasItem *item : all()) {
        const auto *texto = std::get_if<TextLook>(&item->look());
        todos.push_back(
            {numeroDe(*item), item->pos(), forms::tag(item).toInt(), texto ? texto->text : QString()});
    }
    return todos;
}

#include "moc_dibujoDeTorax.cpp"
