#include "clinical/laboratory/casillaDeImagen.h"

#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/shell/shell.h"

#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QLayout>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr QSize medida(148, 84);

} // namespace

Miniatura::Miniatura(const QString &nombre) : ToolButton(nombre, {}, {})
{
    setIconSize(medida);
    setFixedSize(medida + QSize(8, 8));
    setAutoRaise(false);
}

void Miniatura::mostrar(const QString &archivo)
{
    archivo_ = archivo;
    existe_ = QFileInfo(archivo).isFile();
    leida_ = false;
    setIcon(QIcon());
    const bool vacia = archivo.isEmpty();
    setText(vacia ? u"Agregar\nimagen..."_s : existe_ ? QFileInfo(archivo).fileName() : u"No se encuentra"_s);
    setToolButtonStyle(existe_ ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    setToolTip(vacia ? u"Elegir una imagen"_s
               : existe_
                   ? archivo
                   : archivo + u"\nNo se encuentra desde este equipo: se quita del informe al guardar."_s);
    update();
}

void Miniatura::paintEvent(QPaintEvent *event)
{
    if (existe_ && !leida_)
        leer();
    ToolButton::paintEvent(event);
}

void Miniatura::leer()
{
    leida_ = true;
    QImageReader lector(archivo_);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    if (const QSize entera = lector.size(); entera.isValid())
        lector.setScaledSize(entera.scaled(medida * devicePixelRatioF(), Qt::KeepAspectRatio));
    const QImage imagen = lector.read();
    if (imagen.isNull())
        setToolButtonStyle(Qt::ToolButtonTextOnly); // its name says which it is
    else
        setIcon(QIcon(QPixmap::fromImage(imagen)));
}

CasillaDeImagen::CasillaDeImagen()
    : Image1_(u"Image1"_s), mFecha_(u"mFecha"_s, 10), ver_(u"cmdVer"_s, u"Ver la imagen"_s, u"ver"_s),
      quitar_(u"cmdQuitar"_s, u"Quitar la imagen del informe"_s, u"quitar"_s)
{
    mFecha_.setFixedWidth(88);
    mFecha_.setToolTip(u"Fecha de la imagen"_s);
    mFecha_.setAccessibleName(u"Fecha de la imagen"_s);
    setContents(this, Column{Image1_, Row{mFecha_, ver_, quitar_}});
    layout()->setContentsMargins(2, 2, 2, 2);
    layout()->setSpacing(2);
    connect(&Image1_, &QToolButton::clicked, this, &CasillaDeImagen::elegir);
    connect(&ver_, &QToolButton::clicked, this, &CasillaDeImagen::ver);
    connect(&quitar_, &QToolButton::clicked, this, &CasillaDeImagen::quitar);
    connect(&mFecha_, &QLineEdit::textEdited, this, &CasillaDeImagen::cambiada);
    mostrar({{}, basic::Null{}});
}

void CasillaDeImagen::numerar(int numero)
{
    const auto nombrar = [numero](QWidget &control, const QString &nombre) {
        control.setObjectName(u"%1(%2)"_s.arg(nombre).arg(numero));
    };
    nombrar(Image1_, u"Image1"_s);
    nombrar(mFecha_, u"mFecha"_s);
    nombrar(ver_, u"cmdVer"_s);
    nombrar(quitar_, u"cmdQuitar"_s);
}

void CasillaDeImagen::mostrar(const complementos::Imagen &imagen)
{
    archivo_ = imagen.archivo;
    Image1_.mostrar(archivo_);
    ponerFecha(imagen.fecha);
    for (QWidget *deLaImagen : std::initializer_list<QWidget *>{&mFecha_, &quitar_})
        deLaImagen->setEnabled(!archivo_.isEmpty());
    ver_.setEnabled(Image1_.existe());
}

void CasillaDeImagen::ponerFecha(const basic::Value &fecha)
{
    mFecha_.setText(fecha.isBlank() ? complementos::sinFecha : basic::dateText(fecha.date()));
}

void CasillaDeImagen::irALaFecha()
{
    mFecha_.setFocus();
    mFecha_.selectAll();
}

void CasillaDeImagen::ver()
{
    if (!shell::openDocument(archivo_))
        MODULE11::MuestraError(u"No hay un programa para ver la imagen "_s + archivo_);
}

#include "moc_casillaDeImagen.cpp"
