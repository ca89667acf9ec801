#include "clinical/laboratory/graficoDeTendencia.h"

#include "platform/basic/runtime.h"
#include "platform/forms/wrong.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using laboratorio::Punto;

namespace
{

constexpr double radio = 4.5, alcance = 12;
constexpr int rayas = 5;
const QColor tinta(0x1F, 0x4E, 0x79), banda(0xDD, 0xF0, 0xE6), grilla(0xDD, 0xE3, 0xE9),
    fueraDeRango(QRgb(forms::wrongInk));

QString enTexto(double valor)
{
    return basic::format(valor, u"#,##0.###").remove(QRegularExpression(u",$"_s));
}

/// 1, 2 or 5 times a power of ten: what a person counts in.
double pasoRedondo(double tramo)
{
    const double potencia = std::pow(10, std::floor(std::log10(tramo)));
    for (const double veces : {1.0, 2.0, 5.0})
        if (veces * potencia >= tramo)
            return veces * potencia;
    return 10 * potencia;
}

/// Upwards for what is too high, downwards for what is too low.
QPainterPath flecha(QPointF centro, bool arriba)
{
    const double punta = arriba ? -radio * 1.4 : radio * 1.4;
    QPainterPath camino(centro + QPointF(0, punta));
    camino.lineTo(centro + QPointF(radio * 1.3, -punta * 0.7));
    camino.lineTo(centro + QPointF(-radio * 1.3, -punta * 0.7));
    camino.closeSubpath();
    return camino;
}

} // namespace

GraficoDeTendencia::GraficoDeTendencia(const QString &nombre)
{
    setObjectName(nombre);
    setMinimumSize(280, 140);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void GraficoDeTendencia::mostrar(std::vector<Punto> puntos, const laboratorio::Rango &rango)
{
    puntos_ = std::move(puntos);
    rango_ = rango;
    medir();
    update();
}

std::vector<forms::ChartValue> GraficoDeTendencia::chartValues() const
{
    std::vector<forms::ChartValue> valores;
    for (const Punto &punto : puntos_)
        valores.push_back({punto.momento.date().toString(u"dd/MM/yyyy"), punto.valor});
    return valores;
}

/// The scale holds all points and both ends of what is normal.
void GraficoDeTendencia::medir()
{
    std::vector<double> valores;
    for (const Punto &punto : puntos_)
        valores.push_back(punto.valor);
    for (const auto &limite : {rango_.minimo, rango_.maximo})
        if (limite)
            valores.push_back(*limite);
    if (valores.empty())
        return;
    const auto [menor, mayor] = std::ranges::minmax(valores);
    const double margen = mayor > menor ? (mayor - menor) * 0.1 : std::max(std::abs(mayor) * 0.1, 0.5);
    paso_ = pasoRedondo((mayor - menor + 2 * margen) / rayas);
    desde_ = std::floor((menor - margen) / paso_) * paso_;
    hasta_ = std::ceil((mayor + margen) / paso_) * paso_;
}

QRectF GraficoDeTendencia::lugar() const
{
    const QFontMetrics letra = fontMetrics();
    const int ancho =
        std::max(letra.horizontalAdvance(enTexto(desde_)), letra.horizontalAdvance(enTexto(hasta_)));
    const int orilla = letra.horizontalAdvance(u"00/00/0000"_s) / 2;
    return QRectF(rect()).adjusted(std::max(ancho + 14, orilla), 14, -orilla - 6, -letra.height() - 12);
}

double GraficoDeTendencia::y(double valor) const
{
    const QRectF dibujo = lugar();
    return dibujo.bottom() - (valor - desde_) / (hasta_ - desde_) * dibujo.height();
}

QPointF GraficoDeTendencia::donde(const Punto &punto) const
{
    const QRectF dibujo = lugar();
    const auto tramo = static_cast<double>(puntos_.front().momento.secsTo(puntos_.back().momento));
    const double parte =
        tramo > 0 ? static_cast<double>(puntos_.front().momento.secsTo(punto.momento)) / tramo : 0.5;
    return {dibujo.left() + parte * dibujo.width(), y(punto.valor)};
}

void GraficoDeTendencia::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    if (puntos_.empty()) {
        pintor.setPen(palette().color(QPalette::Text));
        pintor.drawText(rect(), Qt::AlignCenter, u"No hay resultados en cifras."_s);
        return;
    }
    pintarBanda(pintor);
    pintarEscala(pintor);
    pintarPuntos(pintor);
}

void GraficoDeTendencia::pintarBanda(QPainter &pintor) const
{
    if (rango_.vacio())
        return;
    const QRectF dibujo = lugar();
    const double arriba = y(rango_.maximo.value_or(hasta_)), abajo = y(rango_.minimo.value_or(desde_));
    pintor.fillRect(QRectF(QPointF(dibujo.left(), arriba), QPointF(dibujo.right(), abajo)), banda);
}

void GraficoDeTendencia::pintarEscala(QPainter &pintor) const
{
    const QRectF dibujo = lugar();
    const int alto = fontMetrics().height();
    const int tramos = static_cast<int>(std::lround((hasta_ - desde_) / paso_));
    for (int tramo = 0; tramo <= tramos; ++tramo) {
        const double valor = desde_ + tramo * paso_;
        pintor.setPen(grilla);
        pintor.drawLine(QPointF(dibujo.left(), y(valor)), QPointF(dibujo.right(), y(valor)));
        pintor.setPen(palette().color(QPalette::Text));
        pintor.drawText(QRectF(0, y(valor) - alto / 2.0, dibujo.left() - 8, alto),
                        Qt::AlignRight | Qt::AlignVCenter, enTexto(valor));
    }
    double ocupado = -1; // days that would stand on one another are left out
    for (const Punto &punto : puntos_) {
        const QString dia = punto.momento.date().toString(u"dd/MM/yyyy");
        const double ancho = fontMetrics().horizontalAdvance(dia);
        const double izquierda = donde(punto).x() - ancho / 2;
        if (izquierda < ocupado)
            continue;
        pintor.drawText(QPointF(izquierda, dibujo.bottom() + alto + 4), dia);
        ocupado = izquierda + ancho + 8;
    }
}

void GraficoDeTendencia::pintarPuntos(QPainter &pintor) const
{
    QPolygonF linea;
    for (const Punto &punto : puntos_)
        linea << donde(punto);
    pintor.setPen(QPen(tinta, 1.6));
    pintor.drawPolyline(linea);
    for (const Punto &punto : puntos_) {
        const bool normal = rango_.contiene(punto.valor);
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(normal ? tinta : fueraDeRango);
        if (normal)
            pintor.drawEllipse(donde(punto), radio, radio);
        else
            pintor.drawPath(flecha(donde(punto), rango_.maximo && punto.valor > *rango_.maximo));
    }
}

bool GraficoDeTendencia::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || puntos_.empty())
        return QWidget::event(event);
    const auto *ayuda = static_cast<QHelpEvent *>(event);
    for (const Punto &punto : puntos_)
        if (QLineF(donde(punto), ayuda->pos()).length() <= alcance) {
            QToolTip::showText(ayuda->globalPos(),
                               punto.momento.toString(u"dd/MM/yyyy HH:mm") + u"\n"_s + punto.texto, this);
            return true;
        }
    QToolTip::hideText();
    return true;
}

#include "moc_graficoDeTendencia.cpp"
