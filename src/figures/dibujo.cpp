#include "figures/dibujo.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace figures
{

namespace
{

constexpr double grados = 360, vuelta = 2 * std::numbers::pi;
constexpr double achatado = 0.62; ///< of the lying pie
constexpr double radioDelPunto = 4.5;
constexpr int pasosDeLaEscala = 5;
constexpr double parteDeLaBarra = 0.62; ///< of the room that a value has

const QColor tinta(0x22, 0x33, 0x44), tenue(0x5a, 0x67, 0x75), grilla(0xdd, 0xe3, 0xe9);

bool esTorta(Tipo tipo)
{
    return tipo == Tipo::Torta || tipo == Tipo::Torta3D;
}

double mayorDe(const Figura &figura)
{
    double mayor = 0;
    for (const Dato &dato : figura.datos)
        mayor = std::max(mayor, dato.valor);
    return mayor;
}

double sumaDe(const Figura &figura)
{
    double suma = 0;
    for (const Dato &dato : figura.datos)
        suma += dato.valor;
    return suma;
}

/// How high a value stands, 0 to 1. On the logarithmic scale 0 stands at the foot, and 1 one step above it.
double parte(double valor, const Escala &escala, Tipo tipo)
{
    if (tipo == Tipo::LogLineas)
        return std::log10(valor + 1) / std::log10(escala.hasta + 1);
    return valor / escala.hasta;
}

double alto3D(const QRectF &dibujo)
{
    return std::min(dibujo.width(), dibujo.height()) * 0.07;
}

QRectF discoDe(const QRectF &dibujo, Tipo tipo)
{
    const double vertical = tipo == Tipo::Torta3D ? achatado : 1;
    const double lado = std::min(dibujo.width(), dibujo.height() / vertical) * 0.92;
    QRectF disco(0, 0, lado, lado * vertical);
    disco.moveCenter(dibujo.center());
    return disco;
}

QPointF centroDe(const QRectF &dibujo, int i, std::size_t cuantos, double altura)
{
    const double ancho = dibujo.width() / static_cast<double>(cuantos);
    return {dibujo.left() + (i + 0.5) * ancho, dibujo.bottom() - altura * dibujo.height()};
}

QPointF enPolar(const QRectF &dibujo, int i, std::size_t cuantos, double altura)
{
    const double angulo = vuelta * i / static_cast<double>(cuantos) - vuelta / 4;
    const double radio = std::min(dibujo.width(), dibujo.height()) / 2 * altura;
    return dibujo.center() + QPointF(std::cos(angulo), std::sin(angulo)) * radio;
}

QPainterPath circulo(QPointF centro)
{
    QPainterPath camino;
    camino.addEllipse(centro, radioDelPunto, radioDelPunto);
    return camino;
}

QPainterPath porcion(const QRectF &disco, double desde, double cuanto)
{
    QPainterPath camino(disco.center());
    camino.arcTo(disco, grados / 4 - desde, -cuanto);
    camino.closeSubpath();
    return camino;
}

std::vector<QPainterPath> porciones(const QRectF &dibujo, const Figura &figura, Tipo tipo)
{
    std::vector<QPainterPath> formas;
    const double suma = sumaDe(figura);
    double desde = 0;
    for (const Dato &dato : figura.datos) {
        const double cuanto = suma > 0 ? dato.valor / suma * grados : 0;
        formas.push_back(porcion(discoDe(dibujo, tipo), desde, cuanto));
        desde += cuanto;
    }
    return formas;
}

QPainterPath formaDe(const QRectF &dibujo, int i, std::size_t cuantos, double altura, Tipo tipo)
{
    const QPointF punta = centroDe(dibujo, i, cuantos, altura);
    const double ancho = dibujo.width() / static_cast<double>(cuantos) * parteDeLaBarra;
    QPainterPath camino;
    switch (tipo) {
    case Tipo::Barras:
    case Tipo::Barras3D:
        camino.addRect(QRectF(punta.x() - ancho / 2, punta.y(), ancho, dibujo.bottom() - punta.y()));
        return camino;
    case Tipo::Gantt: {
        const double renglon = dibujo.height() / static_cast<double>(cuantos);
        camino.addRect(QRectF(dibujo.left(), dibujo.top() + (i + (1 - parteDeLaBarra) / 2) * renglon,
                              altura * dibujo.width(), renglon * parteDeLaBarra));
        return camino;
    }
    case Tipo::Hlc:
        camino.addRect(QRectF(punta.x() - 1.5, punta.y(), 3, dibujo.bottom() - punta.y()));
        camino.addRect(QRectF(punta.x(), punta.y() - 1.5, ancho / 2, 3));
        return camino;
    case Tipo::Polar:
        return circulo(enPolar(dibujo, i, cuantos, altura));
    default:
        return circulo(punta);
    }
}

void pintarEscala(QPainter &pintor, const QRectF &dibujo, const Escala &escala, Tipo tipo)
{
    const bool acostada = tipo == Tipo::Gantt;
    const double renglon = pintor.fontMetrics().height();
    for (double valor = 0; valor <= escala.hasta * 1.0001; valor += escala.paso) {
        const double lugar = parte(valor, escala, tipo);
        const QString texto = QString::number(valor);
        pintor.setPen(grilla);
        if (acostada) {
            const double x = dibujo.left() + lugar * dibujo.width();
            pintor.drawLine(QPointF(x, dibujo.top()), QPointF(x, dibujo.bottom()));
            pintor.setPen(tenue);
            pintor.drawText(QRectF(x - 40, dibujo.bottom() + 2, 80, renglon), Qt::AlignCenter, texto);
        } else {
            const double y = dibujo.bottom() - lugar * dibujo.height();
            pintor.drawLine(QPointF(dibujo.left(), y), QPointF(dibujo.right(), y));
            pintor.setPen(tenue);
            pintor.drawText(QRectF(dibujo.left() - 70, y - renglon / 2, 64, renglon),
                            Qt::AlignRight | Qt::AlignVCenter, texto);
        }
    }
}

void pintarRotulos(QPainter &pintor, const QRectF &dibujo, const Figura &figura, Tipo tipo)
{
    const double renglon = pintor.fontMetrics().height();
    pintor.setPen(tinta);
    for (int i = 0; i < static_cast<int>(figura.datos.size()); ++i) {
        const QString &rotulo = figura.datos[static_cast<std::size_t>(i)].rotulo;
        const auto cuantos = figura.datos.size();
        if (tipo == Tipo::Gantt) {
            const double alto = dibujo.height() / static_cast<double>(cuantos);
            pintor.drawText(QRectF(dibujo.left() - 70, dibujo.top() + i * alto, 64, alto),
                            Qt::AlignRight | Qt::AlignVCenter, rotulo);
        } else if (tipo == Tipo::Polar) {
            QRectF lugar(0, 0, 80, renglon);
            lugar.moveCenter(enPolar(dibujo, i, cuantos, 1.1));
            pintor.drawText(lugar, Qt::AlignCenter, rotulo);
        } else {
            const double ancho = dibujo.width() / static_cast<double>(cuantos);
            pintor.drawText(QRectF(dibujo.left() + i * ancho, dibujo.bottom() + 2, ancho, renglon),
                            Qt::AlignCenter, rotulo);
        }
    }
}

void pintarEjes(QPainter &pintor, const QRectF &dibujo, const Figura &figura, Tipo tipo)
{
    const double renglon = pintor.fontMetrics().height();
    const bool acostada = tipo == Tipo::Gantt;
    pintor.setPen(tenue);
    pintor.drawText(QRectF(dibujo.left(), dibujo.bottom() + renglon + 4, dibujo.width(), renglon),
                    Qt::AlignCenter, acostada ? figura.ejeY : figura.ejeX);
    pintor.save();
    pintor.translate(dibujo.left() - 72, dibujo.center().y());
    pintor.rotate(-90);
    pintor.drawText(QRectF(-dibujo.height() / 2, -renglon, dibujo.height(), renglon), Qt::AlignCenter,
                    acostada ? figura.ejeX : figura.ejeY);
    pintor.restore();
}

/// The line through the points; closed at the foot it is an area.
void pintarLinea(QPainter &pintor, const Disposicion &lugar, Tipo tipo)
{
    QPolygonF linea;
    for (const QPainterPath &forma : lugar.formas)
        linea << forma.boundingRect().center();
    if (linea.isEmpty())
        return;
    pintor.setPen(QPen(color(0), 2));
    if (tipo == Tipo::Areas) {
        QPolygonF area = linea;
        area << QPointF(linea.last().x(), lugar.dibujo.bottom())
             << QPointF(linea.first().x(), lugar.dibujo.bottom());
        QColor relleno = color(0);
        relleno.setAlphaF(0.3F);
        pintor.setBrush(relleno);
        pintor.drawPolygon(area);
        pintor.setBrush(Qt::NoBrush);
    } else if (tipo == Tipo::Polar) {
        pintor.drawPolygon(linea);
    } else {
        pintor.drawPolyline(linea);
    }
}

/// The side and the top of a bar that stands in depth.
void pintarFondo(QPainter &pintor, const QRectF &barra, const QColor &frente, double hondo)
{
    const QPointF corrido(hondo, -hondo);
    pintor.setBrush(frente.lighter(125));
    pintor.drawPolygon(
        QPolygonF{barra.topLeft(), barra.topLeft() + corrido, barra.topRight() + corrido, barra.topRight()});
    pintor.setBrush(frente.darker(130));
    pintor.drawPolygon(QPolygonF{barra.topRight(), barra.topRight() + corrido, barra.bottomRight() + corrido,
                                 barra.bottomRight()});
}

/// The label of a slice that is wide enough for it; long ones stand in the references.
void pintarRotulosDeTorta(QPainter &pintor, const Disposicion &lugar, const Figura &figura)
{
    constexpr double angostas = 0.03;
    constexpr qsizetype letras = 12;
    const double suma = sumaDe(figura);
    double desde = 0;
    pintor.setPen(Qt::white);
    for (const Dato &dato : figura.datos) {
        const double cuanto = suma > 0 ? dato.valor / suma : 0;
        if (cuanto >= angostas && dato.rotulo.size() <= letras) {
            const double angulo = vuelta * (desde + cuanto / 2) - vuelta / 4;
            QRectF lugarDelTexto(0, 0, 90, pintor.fontMetrics().height());
            QRectF disco = lugar.formas.front().boundingRect();
            for (const QPainterPath &forma : lugar.formas)
                disco |= forma.boundingRect();
            lugarDelTexto.moveCenter(
                disco.center() +
                QPointF(std::cos(angulo) * disco.width(), std::sin(angulo) * disco.height()) * 0.33);
            pintor.drawText(lugarDelTexto, Qt::AlignCenter, dato.rotulo);
        }
        desde += cuanto;
    }
}

void pintarTorta(QPainter &pintor, const Disposicion &lugar, Tipo tipo)
{
    if (tipo == Tipo::Torta3D)
        for (int hondura = static_cast<int>(alto3D(lugar.dibujo)); hondura > 0; --hondura)
            for (std::size_t i = 0; i < lugar.formas.size(); ++i)
                pintor.fillPath(lugar.formas[i].translated(0, hondura),
                                color(static_cast<int>(i)).darker(135));
    pintor.setPen(QPen(Qt::white, 1));
    for (std::size_t i = 0; i < lugar.formas.size(); ++i) {
        pintor.setBrush(color(static_cast<int>(i)));
        pintor.drawPath(lugar.formas[i]);
    }
}

void pintarPolar(QPainter &pintor, const QRectF &dibujo, const Escala &escala)
{
    const double radio = std::min(dibujo.width(), dibujo.height()) / 2;
    for (double valor = escala.paso; valor <= escala.hasta * 1.0001; valor += escala.paso) {
        pintor.setPen(grilla);
        pintor.drawEllipse(dibujo.center(), radio * valor / escala.hasta, radio * valor / escala.hasta);
        pintor.setPen(tenue);
        pintor.drawText(dibujo.center() + QPointF(3, -radio * valor / escala.hasta), QString::number(valor));
    }
}

void pintarFormas(QPainter &pintor, const Disposicion &lugar, Tipo tipo)
{
    const bool unidas =
        tipo == Tipo::Lineas || tipo == Tipo::LogLineas || tipo == Tipo::Areas || tipo == Tipo::Polar;
    if (unidas)
        pintarLinea(pintor, lugar, tipo);
    const double hondo = alto3D(lugar.dibujo) / 2;
    for (const QPainterPath &forma : lugar.formas) {
        pintor.setPen(Qt::NoPen);
        if (tipo == Tipo::Barras3D && forma.boundingRect().height() > 0)
            pintarFondo(pintor, forma.boundingRect(), color(0), hondo);
        pintor.setBrush(color(0));
        pintor.drawPath(forma);
    }
}

} // namespace

QColor color(int n)
{
    // A palette that stays apart in the three common ways of seeing colours.
    static constexpr std::array<QRgb, 8> paleta{qRgb(0, 114, 178),  qRgb(230, 159, 0),  qRgb(0, 158, 115),
                                                qRgb(213, 94, 0),   qRgb(86, 180, 233), qRgb(204, 121, 167),
                                                qRgb(240, 228, 66), qRgb(90, 90, 90)};
    const QColor base(paleta[static_cast<std::size_t>(n) % paleta.size()]);
    return n < static_cast<int>(paleta.size()) ? base : base.lighter(145);
}

Escala escalaPara(double mayor)
{
    if (mayor <= 0)
        return {1, 1};
    const double aproximado = mayor / pasosDeLaEscala;
    const double potencia = std::pow(10, std::floor(std::log10(aproximado)));
    double paso = 10 * potencia;
    for (const double veces : {1.0, 2.0, 5.0})
        if (veces * potencia >= aproximado) {
            paso = veces * potencia;
            break;
        }
    paso = std::max(paso, 1.0); // what is counted has no halves
    return {std::ceil(mayor / paso) * paso, paso};
}

Disposicion disponer(const QRectF &lugar, const QFontMetricsF &letra, const Figura &figura, Tipo tipo)
{
    const double renglon = letra.height();
    Disposicion todo;
    todo.titulo = QRectF(lugar.left(), lugar.top() + 4, lugar.width(), renglon * 2.4);
    todo.dibujo = lugar.adjusted(96, renglon * 3.2, -24, -renglon * 2.6);
    if (esTorta(tipo)) {
        todo.formas = porciones(todo.dibujo, figura, tipo);
        return todo;
    }
    if (tipo == Tipo::Polar)
        todo.dibujo.adjust(0, renglon, 0, 0);
    const Escala escala = escalaPara(mayorDe(figura));
    for (int i = 0; i < static_cast<int>(figura.datos.size()); ++i)
        todo.formas.push_back(formaDe(todo.dibujo, i, figura.datos.size(),
                                      parte(figura.datos[static_cast<std::size_t>(i)].valor, escala, tipo),
                                      tipo));
    return todo;
}

void dibujar(QPainter &pintor, const QRectF &lugar, const Figura &figura, Tipo tipo)
{
    pintor.setRenderHint(QPainter::Antialiasing);
    const Disposicion todo = disponer(lugar, QFontMetricsF(pintor.font(), pintor.device()), figura, tipo);
    QFont destacada = pintor.font();
    destacada.setBold(true);
    const QFont comun = pintor.font();
    pintor.setPen(tinta);
    pintor.setFont(destacada);
    pintor.drawText(todo.titulo, Qt::AlignHCenter | Qt::AlignTop, figura.titulo);
    pintor.setFont(comun);
    pintor.setPen(tenue);
    pintor.drawText(todo.titulo, Qt::AlignHCenter | Qt::AlignBottom, figura.sobre);
    if (esTorta(tipo)) {
        pintarTorta(pintor, todo, tipo);
        pintarRotulosDeTorta(pintor, todo, figura);
        return;
    }
    const Escala escala = escalaPara(mayorDe(figura));
    if (tipo == Tipo::Polar) {
        pintarPolar(pintor, todo.dibujo, escala);
    } else {
        pintarEscala(pintor, todo.dibujo, escala, tipo);
        pintarEjes(pintor, todo.dibujo, figura, tipo);
    }
    pintarRotulos(pintor, todo.dibujo, figura, tipo);
    pintarFormas(pintor, todo, tipo);
}

} // namespace figures
