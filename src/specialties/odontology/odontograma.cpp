#include "specialties/odontology/odontograma.h"

#include "platform/forms/colour.h"
#include "platform/forms/twips.h"
#include "specialties/odontology/trazos.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;
using namespace forms;

namespace odonto
{

namespace
{

const QColor tinta(0x5a, 0x62, 0x70), tenue(0xc9, 0xd1, 0xd8), marfil(0xfd, 0xf8, 0xec),
    detalle(0xb9, 0xa9, 0x88), cambiada(0xe0, 0x8a, 0x1e);
constexpr double pixel = twipsPorBorde;
constexpr int puntosDeLetra = 7;
constexpr double anchoDeLeyenda = 1.2 * anchoDePieza;

QFont letra()
{
    return QFont(u"Tahoma"_s, puntosDeLetra);
}

QString llamado(QStringView nombre, int indice)
{
    return u"%1(%2)"_s.arg(nombre).arg(indice);
}

/// The index in an item's name; -1 when it is of another kind.
int indiceDe(const QString &item, QStringView nombre)
{
    if (!item.startsWith(nombre) || item.size() <= nombre.size() || item[nombre.size()] != u'(')
        return -1;
    return QStringView(item).mid(nombre.size() + 1).chopped(1).toInt();
}

/// The face that a pressed item stands for; 0 for none.
int caraDelItem(const QString &item)
{
    if (const int cara = indiceDe(item, u"cara"); cara > 0)
        return cara;
    const int pieza = indiceDe(item, u"shape");
    return pieza > 0 ? caraDe(pieza, Centro) : 0;
}

/// What there is room for under a tooth; the rest is read in its tip.
QString enDosRenglones(const QString &leyenda)
{
    const QFontMetricsF medida(letra());
    const double ancho = toPixels(anchoDeLeyenda);
    qsizetype corte = leyenda.size();
    while (corte > 0 && medida.horizontalAdvance(leyenda.left(corte)) > ancho)
        --corte;
    if (corte == leyenda.size())
        return leyenda;
    if (const qsizetype blanco = leyenda.lastIndexOf(u' ', corte); blanco > 0)
        corte = blanco;
    return leyenda.left(corte).trimmed() + u'\n' +
           medida.elidedText(leyenda.mid(corte).trimmed(), Qt::ElideRight, ancho);
}

ShapeLook figura(const QPainterPath &contorno, const QColor &relleno, const QColor &linea, double ancho)
{
    return ShapeLook{contorno, relleno, linea, ancho};
}

} // namespace

QColor colorDe(int numero)
{
    return numero >= 0 && numero <= blanco ? fromColourValue(numero) : QColor(Qt::white);
}

/// Four trapezes around the centre.
QPainterPath contornoDeCara(int cara, double lado)
{
    const double hueco = ladoDelCentro * lado / anchoDePieza, a = (lado - hueco) / 2, b = a + hueco;
    const QPointF fuera[] = {{0, 0}, {lado, 0}, {lado, lado}, {0, lado}};
    const QPointF dentro[] = {{a, a}, {b, a}, {b, b}, {a, b}};
    QPainterPath contorno;
    if (cara == Centro) {
        contorno.addRect(a, a, hueco, hueco);
        return contorno;
    }
    const int siguiente = (cara + 1) % 4;
    contorno.addPolygon(QPolygonF({fuera[cara], fuera[siguiente], dentro[siguiente], dentro[cara]}));
    contorno.closeSubpath();
    return contorno;
}

Odontograma::Odontograma(const QString &nombre) : Canvas(nombre, medidaDelOdontograma())
{
    setAccessibleName(u"Odontograma"_s);
    setFrameShape(QFrame::StyledPanel);
    for (int pieza = 1; pieza <= odonto::piezas; ++pieza)
        agregarPieza(pieza);
    agregarLados();
    connect(this, &Canvas::clicked, this, [this](const QString &item) {
        if (const int cara = caraDelItem(item))
            emit caraPulsada(cara);
    });
    connect(this, &Canvas::contextMenu, this, [this](const QString &item, QPoint pantalla) {
        if (const int cara = caraDelItem(item))
            emit menuPedido(cara, pantalla);
    });
}

void Odontograma::agregarPieza(int pieza)
{
    const QRectF lugar = lugarDePieza(pieza);
    const QString nombre = u"%1, %2"_s.arg(numeroFdi(pieza)).arg(nombreDePieza(pieza));
    const Anatomia forma = anatomia(pieza);
    Pieza &p = piezas_[static_cast<std::size_t>(pieza)];
    const auto agregar = [&](QStringView clase, QPointF corrido, Look look) {
        return &add(llamado(clase, pieza), lugar.topLeft() + corrido, std::move(look));
    };
    QPainterPath borde;
    borde.addRoundedRect(QRectF(QPointF(), lugar.size()), 2 * pixel, 2 * pixel);
    p.contorno = agregar(u"shape", {}, figura(borde, Qt::transparent, tenue, pixel));
    p.contorno->setFlag(QGraphicsItem::ItemIsFocusable, false);
    p.contorno->setToolTip(nombre);
    p.silueta = agregar(u"diente", {}, figura(forma.silueta, marfil, tinta, .8 * pixel));
    CanvasItem *relieve =
        agregar(u"relieve", {}, figura(forma.relieve, Qt::transparent, detalle, .6 * pixel));
    const QPointF cuadro = cuadroDeCaras(pieza).topLeft();
    for (int c = Arriba; c <= Centro; ++c) {
        const int cara = caraDe(pieza, c);
        CanvasItem &item = add(llamado(u"cara", cara), lugar.topLeft() + cuadro,
                               figura(contornoDeCara(c), Qt::white, tinta, .8 * pixel));
        item.setToolTip(u"%1: %2"_s.arg(nombre, nombreDeCara(cara)));
        p.caras[static_cast<std::size_t>(c)] = &item;
    }
    p.numero = &add(llamado(u"nMue", pieza), lugarDelNumero(pieza),
                    TextLook{QString::number(numeroFdi(pieza)), letra()});
    p.leyenda = agregar(u"le", {-.1 * anchoDePieza, lugar.height() + pixel},
                        TextLook{{}, letra(), anchoDeLeyenda, Qt::black, Qt::AlignHCenter});
    p.cruz = agregar(u"xh", {}, figura(cruz(), Qt::transparent, colorDe(rojo), 3 * pixel));
    p.marca = agregar(u"marca", {}, figura({}, Qt::transparent, colorDe(rojo), 3 * pixel));
    for (CanvasItem *inerte : {p.silueta, relieve, p.numero, p.leyenda, p.cruz, p.marca})
        inerte->setInert();
    mostrarMarca({}, pieza);
}

/// The chart is seen from in front.
void Odontograma::agregarLados()
{
    const QRectF primera = lugarDePieza(1);
    const auto agregar = [&](const QString &nombre, const QString &texto, double x, Qt::Alignment lado) {
        add(nombre, {x, 60}, TextLook{texto, letra(), 4000, tinta, lado}).setInert();
    };
    agregar(u"ladoDerecho"_s, u"Derecha del paciente"_s, primera.left(), Qt::AlignLeft);
    agregar(u"ladoIzquierdo"_s, u"Izquierda del paciente"_s, sizeTwips().width() - primera.left() - 4000,
            Qt::AlignRight);
}

void Odontograma::mostrar(const Esquema &esquema)
{
    for (int pieza = 1; pieza <= odonto::piezas; ++pieza)
        mostrarPieza(esquema, pieza);
}

void Odontograma::mostrarPieza(const Esquema &esquema, int pieza)
{
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        mostrarCara(esquema, cara);
    mostrarMarca(esquema.marca(pieza), pieza);
}

void Odontograma::mostrarCara(const Esquema &esquema, int cara)
{
    Pintura &antes = pintadas_[static_cast<std::size_t>(cara)];
    if (antes == esquema.pintura(cara))
        return;
    antes = esquema.pintura(cara);
    piezas_[static_cast<std::size_t>(piezaDe(cara))]
        .caras[static_cast<std::size_t>(cara % carasPorPieza)]
        ->setFill(colorDe(esquema.color(cara)));
}

void Odontograma::mostrarMarca(const Marca &marca, int pieza)
{
    const Pieza &p = piezas_[static_cast<std::size_t>(pieza)];
    const QColor color = colorDe(marca.color);
    p.cruz->setVisible(marca.tipo == Ausente);
    if (marca.tipo == Ausente)
        p.cruz->setLook(figura(cruz(), Qt::transparent, color, 3 * pixel));
    const QPainterPath trazo = trazoDe(marca.tipo, pieza);
    p.marca->setVisible(!trazo.isEmpty());
    if (!trazo.isEmpty())
        p.marca->setLook(figura(trazo, Qt::transparent, color, 2.5 * pixel));
    mostrarLeyenda(marca, pieza);
}

void Odontograma::mostrarLeyenda(const Marca &marca, int pieza)
{
    CanvasItem &item = *piezas_[static_cast<std::size_t>(pieza)].leyenda;
    QString &antes = leyendas_[static_cast<std::size_t>(pieza)];
    TextLook look = std::get<TextLook>(item.look());
    const QColor color = colorDe(marca.colorDeLeyenda);
    item.setVisible(!marca.leyenda.isEmpty());
    if (antes == marca.leyenda && look.colour == color)
        return;
    antes = marca.leyenda;
    look.text = enDosRenglones(marca.leyenda);
    look.colour = color;
    item.setLook(look);
    item.setToolTip(marca.leyenda);
}

void Odontograma::ponerBorde(int pieza, const QColor &color, int ancho)
{
    CanvasItem &contorno = *piezas_[static_cast<std::size_t>(pieza)].contorno;
    ShapeLook look = std::get<ShapeLook>(contorno.look());
    look.line = color;
    look.lineWidth = ancho * pixel;
    contorno.setLook(look);
}

void Odontograma::elegir(int pieza)
{
    if (elegida_ != 0)
        ponerBorde(elegida_, tenue, 1);
    elegida_ = pieza;
    if (elegida_ != 0)
        ponerBorde(elegida_, palette().color(QPalette::Highlight), 2);
}

void Odontograma::destacar(const std::vector<int> &miradas)
{
    elegir(0);
    for (int pieza = 1; pieza <= odonto::piezas; ++pieza)
        ponerBorde(pieza, tenue, 1);
    for (const int pieza : miradas)
        ponerBorde(pieza, cambiada, 3);
}

/// A face has the two colours that are kept of it, whichever is seen, and a legend is read whole.
std::vector<DrawnItem> Odontograma::drawnItems() const
{
    std::vector<DrawnItem> items = Canvas::drawnItems();
    for (DrawnItem &item : items)
        if (const int cara = indiceDe(item.name, u"cara"); cara > 0) {
            const Pintura &dos = pintadas_[static_cast<std::size_t>(cara)];
            item.foreColor = colorDe(dos.frente);
            item.backColor = colorDe(dos.fondo);
        } else if (const int pieza = indiceDe(item.name, u"le"); pieza > 0) {
            item.caption = leyendas_[static_cast<std::size_t>(pieza)];
        }
    return items;
}

void Odontograma::resizeEvent(QResizeEvent *event)
{
    Canvas::resizeEvent(event);
    fit();
}

} // namespace odonto

#include "moc_odontograma.cpp"
