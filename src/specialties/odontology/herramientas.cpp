#include "specialties/odontology/herramientas.h"

#include "platform/forms/colour.h"
#include "specialties/odontology/odontograma.h"
#include "specialties/odontology/trazos.h"

#include <QLayout>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace forms;

namespace odonto
{

namespace
{

constexpr int ladoDelIcono = 22, ladoDeMuestra = 26, muestrasPorRenglon = 5;
constexpr double nitidez = 3; ///< dots to a pixel, for screens of any density

struct Pincel {
    int panel, cara;
    const char16_t *nombre;
};
constexpr Pincel pinceles[] = {{1, Abajo, u"Cara de abajo"},
                               {2, Derecha, u"Cara de la derecha"},
                               {6, Arriba, u"Cara de arriba"},
                               {7, Izquierda, u"Cara de la izquierda"},
                               {8, Centro, u"Cara del centro"}};

struct ColorConNombre {
    const char16_t *nombre;
    int color;
};
constexpr ColorConNombre paleta[] = {
    {u"Rojo", rojo},        {u"Azul", azul},         {u"Negro", 0x000000},   {u"Verde", 0x008000},
    {u"Blanco", blanco},    {u"Amarillo", 0x00ffff}, {u"Naranja", 0x0080ff}, {u"Marrón", 0x204080},
    {u"Celeste", 0xffc080}, {u"Gris", 0x808080},
};

QIcon icono(const std::function<void(QPainter &)> &dibujar)
{
    QPixmap dibujo(QSize(ladoDelIcono, ladoDelIcono) * nitidez);
    dibujo.setDevicePixelRatio(nitidez);
    dibujo.fill(Qt::transparent);
    QPainter pintor(&dibujo);
    pintor.setRenderHint(QPainter::Antialiasing);
    dibujar(pintor);
    return QIcon(dibujo);
}

/// The five faces with one of them, or all, filled.
QIcon iconoDeCaras(std::optional<int> llena)
{
    return icono([&](QPainter &pintor) {
        pintor.translate(1, 1);
        for (int cara = Arriba; cara <= Centro; ++cara) {
            pintor.setPen(QPen(QColor(0x3c, 0x44, 0x50), 1));
            pintor.setBrush(!llena || *llena == cara ? QColor(0x2f, 0x7d, 0xb5) : QColor(Qt::white));
            pintor.drawPath(contornoDeCara(cara, ladoDelIcono - 2));
        }
    });
}

/// A tooth with the mark on it.
QIcon iconoDeMarca(int tipo)
{
    return icono([&](QPainter &pintor) {
        constexpr int modelo = 6; // a canine shows crown and root
        const double escala = ladoDelIcono / (altoDePieza + 80.0);
        pintor.translate((ladoDelIcono - anchoDePieza * escala) / 2, 40 * escala);
        pintor.scale(escala, escala);
        pintor.setPen(QPen(QColor(0x3c, 0x44, 0x50), 30));
        pintor.drawPath(anatomia(modelo).silueta);
        pintor.drawRect(cuadroDeCaras(modelo));
        pintor.setPen(QPen(Qt::red, 90));
        pintor.drawPath(tipo == Ausente ? cruz() : trazoDe(tipo, modelo));
    });
}

QIcon iconoDelPrograma(const QString &nombre)
{
    return QIcon(u":/icons/%1.svg"_s.arg(nombre));
}

} // namespace

Herramienta::Herramienta(const QString &nombre, const QString &rotulo, const QIcon &icono, bool conTexto)
{
    setObjectName(nombre);
    setText(rotulo);
    setToolTip(rotulo);
    setIcon(icono);
    setIconSize({ladoDelIcono, ladoDelIcono});
    setToolButtonStyle(conTexto ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
}

Herramientas::Herramientas()
    : Flotante(u"Label8"_s, u"Herramientas"_s),
      cmLeyenda(u"cmLeyenda"_s, u"Leyenda particular"_s, iconoDelPrograma(u"editar"_s), false),
      cmLimpiar(u"cmLimpiar"_s, u"Limpiar la pieza"_s, iconoDelPrograma(u"borrar"_s), false)
{
    setObjectName(u"herramientas"_s);
    SSPanel2.add(PiezaEntera, u"Pintar toda la pieza"_s, iconoDeCaras({}), false);
    SSPanel2.add(ColorActual, u"Color actual"_s, QIcon(), false);
    for (const Pincel &pincel : pinceles)
        SSPanel2.add(pincel.panel, QString::fromUtf16(pincel.nombre), iconoDeCaras(pincel.cara), false);
    std::vector<Item> marcas;
    for (const ClaseDeMarca &clase : clasesDeMarca()) {
        Herramienta &marca =
            SSPanel2.add(clase.herramienta, clase.nombre.toString(), iconoDeMarca(clase.tipo), true);
        marca.setCheckable(true);
        marcas.emplace_back(marca);
    }
    setContents(this, Column{titulo_,
                             Grid(3, {SSPanel2(PiezaEntera), SSPanel2(6), SSPanel2(ColorActual), SSPanel2(7),
                                      SSPanel2(8), SSPanel2(2), cmLeyenda, SSPanel2(1), cmLimpiar}),
                             Grid(2, marcas)});
    layout()->setContentsMargins(8, 6, 8, 8);
    for (auto &[panel, herramienta] : SSPanel2)
        connect(herramienta.get(), &QToolButton::clicked, this,
                [this, panel = panel] { emit elegida(panel); });
    connect(&cmLeyenda, &QToolButton::clicked, this, &Herramientas::leyendaPedida);
    connect(&cmLimpiar, &QToolButton::clicked, this, &Herramientas::limpiezaPedida);
}

void Herramientas::bajar(int tipo)
{
    for (const ClaseDeMarca &clase : clasesDeMarca())
        SSPanel2(clase.herramienta).setChecked(clase.tipo == tipo);
}

void Herramientas::mostrarColor(int color)
{
    SSPanel2(ColorActual).setIcon(icono([&](QPainter &pintor) {
        pintor.setPen(QColor(0x3c, 0x44, 0x50));
        pintor.setBrush(colorDe(color));
        pintor.drawEllipse(QRectF(2, 2, ladoDelIcono - 4, ladoDelIcono - 4));
    }));
}

std::optional<int> Herramientas::caraDe(int panel)
{
    for (const Pincel &pincel : pinceles)
        if (pincel.panel == panel)
            return pincel.cara;
    return std::nullopt;
}

Muestra::Muestra(const QString &nombre, const QString &colorEnPalabras, int color)
{
    setObjectName(nombre);
    setToolTip(colorEnPalabras);
    setAccessibleName(colorEnPalabras);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setBackColor(*this, colorDe(color));
    setAutoFillBackground(false);
}

QSize Muestra::sizeHint() const
{
    return {ladoDeMuestra, ladoDeMuestra};
}

void Muestra::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setPen(QPen(isChecked() ? QColor(Qt::black) : QColor(0x9a, 0xa5, 0xaf), isChecked() ? 2.5 : 1));
    pintor.setBrush(backColor(*this));
    const int aire = isChecked() ? 2 : 4;
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.drawRoundedRect(QRectF(rect()).adjusted(aire, aire, -aire, -aire), 3, 3);
    if (!hasFocus())
        return;
    pintor.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

Colores::Colores() : Flotante(u"Label9"_s, u"Colores"_s)
{
    setObjectName(u"colores"_s);
    std::vector<Item> muestras;
    for (int i = 0; const ColorConNombre &color : paleta) {
        Muestra &muestra = xCol.add(i++, QString::fromUtf16(color.nombre), color.color);
        muestras.emplace_back(muestra);
        connect(&muestra, &Muestra::clicked, this, [this, &muestra, color] {
            for (auto &[indice, otra] : xCol) // no group: the Tab key comes to each
                otra->setChecked(otra.get() == &muestra);
            emit elegido(color.color);
        });
    }
    xCol(0).setChecked(true);
    setContents(this, Column{titulo_, Grid(muestrasPorRenglon, muestras)});
    layout()->setContentsMargins(8, 6, 8, 8);
}

} // namespace odonto

#include "moc_herramientas.cpp"
