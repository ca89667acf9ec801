#include "specialties/eye/pangraBio.h"

#include "core/services/services.h"
#include "platform/forms/boxes.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int iconosPorRenglon = 13;
constexpr int largoDeTexto = 100; // with its breaks encoded it fits the file's line

} // namespace

pantextoojo::pantextoojo(const QString &texto) : Form(u"pantextoojo"_s)
{
    setWindowTitle(u"Observaciones del dibujo"_s);
    Text1.setPlainText(texto);
    setContents(this, Column{Expanding(Text1), Row{Stretch(), Command1, Command2}});
    resize(460, 260);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

namespace oftalmo
{

DibujoEditable::DibujoEditable(const QString &ventana, const QString &titulo, Clase clase)
    : Form(ventana), Picture1(u"Picture1"_s, clase)
{
    setWindowTitle(titulo);
    Picture1.setAccessibleName(titulo);
    Picture1.setPonedor([this](int simbolo, QPointF lugar) { ponerSello(simbolo, lugar); });
    Picture1.agregarIcono(u"rotulo"_s, u"Un texto sobre el dibujo"_s,
                          [this](QPointF lugar) { ponerTexto(lugar); });
    lblObservaciones.setWordWrap(true);
    setContents(this, Column{Expanding(Picture1), Picture1.paleta(iconosPorRenglon), lblObservaciones,
                             Row{Command3, Stretch(), Command1, Command2}});
    resize(960, 640);
    connect(&Picture1, &Canvas::doubleClicked, this,
            [this](const QString &marca) { Picture1.remove(marca); });
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &DibujoEditable::observar);
}

void DibujoEditable::mostrar(const Dibujo &dibujo)
{
    Picture1.mostrar(dibujo);
    observaciones_ = dibujo.observaciones;
    lblObservaciones.setCaption(observaciones_);
    antes_ = this->dibujo();
}

Dibujo DibujoEditable::dibujo() const
{
    Dibujo hecho = Picture1.dibujo();
    hecho.observaciones = observaciones_;
    return hecho;
}

bool DibujoEditable::queryUnload()
{
    return dibujo() == antes_ || MODULE11::PreguntaSiBorra(u"Cierra sin guardar el dibujo?"_s);
}

void DibujoEditable::keyPressEvent(QKeyEvent *event)
{
    const CanvasItem *elegida = Picture1.hasFocus() ? Picture1.focused() : nullptr;
    if (event->key() == Qt::Key_Delete && elegida)
        Picture1.remove(elegida->name());
    else
        Form::keyPressEvent(event);
}

void DibujoEditable::ponerSello(int simbolo, QPointF lugar)
{
    if (Picture1.hayLugarPara(u"Image"))
        Picture1.poner(simbolo, lugar);
    else
        MODULE11::MuestraError(u"El dibujo está completo: quite un símbolo para poner otro."_s);
}

void DibujoEditable::ponerTexto(QPointF lugar)
{
    if (!Picture1.hayLugarPara(u"Label")) {
        MODULE11::MuestraError(u"El dibujo está completo: quite un texto para poner otro."_s);
        return;
    }
    const auto texto = inputBox(u"Texto :"_s, u"Texto sobre el dibujo"_s, {}, largoDeTexto);
    if (texto && !texto->trimmed().isEmpty())
        Picture1.rotular(texto->trimmed(), lugar);
}

void DibujoEditable::observar()
{
    pantextoojo ventana(observaciones_);
    ventana.showModal();
    if (ventana.tag() != u"SI")
        return;
    observaciones_ = ventana.texto();
    lblObservaciones.setCaption(observaciones_);
}

} // namespace oftalmo

pangraBio::pangraBio() : DibujoEditable(u"pangraBio"_s, u"Biomicroscopia"_s, oftalmo::Clase::Biomicroscopia)
{
    setTag(u"BIO"_s);
}

panGraFondo::panGraFondo() : DibujoEditable(u"panGraFondo"_s, u"Fondo de Ojo"_s, oftalmo::Clase::Fondo)
{
    setTag(u"FONDO"_s);
}

#include "moc_pangraBio.cpp"
