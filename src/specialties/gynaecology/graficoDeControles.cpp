#include "specialties/gynaecology/graficoDeControles.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using gestacion::Control;

namespace
{

constexpr double primeraSemana = 4, ultimaSemana = 42, semanasPorRaya = 4;
constexpr double margenIzquierdo = 46, margenDerecho = 14, radio = 3;
const QColor grilla(0xdd, 0xe3, 0xe9), letras(0x5a, 0x67, 0x75);

/// A line of the graph. Two that share a frame follow one another.
struct Serie {
    const char *nombre;
    std::optional<double> Control::*valor;
    QColor color;
    int cuadro;
};
const Serie series[] = {
    {"Altura uterina (cm)", &Control::altura, QColor(0x1f, 0x4e, 0x79), 0},
    {"Peso (kg)", &Control::peso, QColor(0x1f, 0x94, 0x88), 1},
    {"Presión máxima", &Control::maxima, QColor(0xb0, 0x3a, 0x2e), 2},
    {"Presión mínima", &Control::minima, QColor(0xd9, 0x8a, 0x00), 2},
};
constexpr int cuadros = 3;

double enSemana(const QRectF &cuadro, double semana)
{
    return cuadro.left() + (semana - primeraSemana) / (ultimaSemana - primeraSemana) * cuadro.width();
}

} // namespace

GraficoDeControles::GraficoDeControles(const QString &nombre)
{
    setObjectName(nombre);
    setMinimumSize(320, 240);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void GraficoDeControles::mostrar(std::vector<Control> controles)
{
    controles_ = std::move(controles);
    std::ranges::stable_sort(controles_, {}, &Control::semana);
    update();
}

std::vector<forms::ChartValue> GraficoDeControles::chartValues() const
{
    std::vector<forms::ChartValue> valores;
    for (const Serie &serie : series)
        for (const Control &control : controles_)
            if (const auto valor = control.*serie.valor)
                valores.push_back({QString::fromUtf8(serie.nombre), *valor});
    return valores;
}

/// From the lowest to the highest value of a frame; nothing without any.
std::optional<std::pair<double, double>> GraficoDeControles::extremos(int cuadro) const
{
    std::vector<double> valores;
    for (const Serie &serie : series)
        for (const Control &control : controles_)
            if (const auto valor = control.*serie.valor; valor && serie.cuadro == cuadro)
                valores.push_back(*valor);
    if (valores.empty())
        return std::nullopt;
    const auto [menor, mayor] = std::ranges::minmax(valores);
    return std::pair{menor, mayor};
}

void GraficoDeControles::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const int renglon = fontMetrics().height();
    const double alto = (height() - renglon - 8.0) / cuadros;
    for (int numero = 0; numero < cuadros; ++numero)
        pintarCuadro(pintor, numero,
                     QRectF(margenIzquierdo, numero * alto + renglon + 4,
                            width() - margenIzquierdo - margenDerecho, alto - renglon - 10));
    pintor.setPen(letras);
    const QRectF pie(margenIzquierdo, 0, width() - margenIzquierdo - margenDerecho, height());
    for (double semana = primeraSemana; semana <= ultimaSemana; semana += semanasPorRaya)
        pintor.drawText(QRectF(enSemana(pie, semana) - 20, height() - renglon - 2.0, 40, renglon),
                        Qt::AlignCenter, u"%1 s"_s.arg(semana));
}

void GraficoDeControles::pintarCuadro(QPainter &pintor, int numero, const QRectF &cuadro) const
{
    pintor.setPen(grilla);
    pintor.drawRect(cuadro);
    for (double semana = primeraSemana; semana <= ultimaSemana; semana += semanasPorRaya)
        pintor.drawLine(QPointF(enSemana(cuadro, semana), cuadro.top()),
                        QPointF(enSemana(cuadro, semana), cuadro.bottom()));
    const auto limites = extremos(numero);
    const double margen = limites ? std::max((limites->second - limites->first) * 0.15, 1.0) : 0;
    const auto y = [&](double valor) {
        return cuadro.bottom() - (valor - limites->first + margen) /
                                     (limites->second - limites->first + 2 * margen) * cuadro.height();
    };
    double letra = cuadro.left();
    for (const Serie &serie : series) {
        if (serie.cuadro != numero)
            continue;
        const QString nombre = QString::fromUtf8(serie.nombre);
        pintor.setPen(serie.color);
        pintor.drawText(QPointF(letra, cuadro.top() - 4), nombre);
        letra += fontMetrics().horizontalAdvance(nombre) + 16;
        QPolygonF linea;
        for (const Control &control : controles_)
            if (const auto valor = control.*serie.valor)
                linea << QPointF(enSemana(cuadro, control.semana), y(*valor));
        pintor.setPen(QPen(serie.color, 1.8));
        pintor.drawPolyline(linea);
        pintor.setBrush(serie.color);
        for (const QPointF &punto : linea)
            pintor.drawEllipse(punto, radio, radio);
        pintor.setBrush(Qt::NoBrush);
    }
    if (!limites)
        return;
    const int renglon = fontMetrics().height();
    pintor.setPen(letras);
    for (const double valor : {limites->first, limites->second})
        pintor.drawText(QRectF(0, y(valor) - renglon / 2.0, margenIzquierdo - 4, renglon),
                        Qt::AlignRight | Qt::AlignVCenter, QString::number(valor));
}

#include "moc_graficoDeControles.cpp"
