#include "specialties/cardiology/graficoDePesos.h"

#include "platform/basic/runtime.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using pesos::Punto;

namespace
{

const QColor grilla(0xdd, 0xe3, 0xe9), letras(0x5a, 0x67, 0x75), linea(0x1f, 0x4e, 0x79);
constexpr int rayasDeFecha = 5, rayasDePeso = 6;
constexpr double radio = 3;

/// The step of a scale that takes no more than so many lines: 1, 2 or 5 of some power of ten.
double paso(double amplitud, int rayas)
{
    const double crudo = amplitud / rayas;
    const double potencia = std::pow(10, std::floor(std::log10(crudo)));
    for (const double veces : {1.0, 2.0, 5.0})
        if (veces * potencia >= crudo)
            return veces * potencia;
    return 10 * potencia;
}

} // namespace

GraficoDePesos::GraficoDePesos(const QString &nombre)
{
    setObjectName(nombre);
    setAccessibleName(u"Peso por fecha"_s);
    setMinimumSize(360, 220);
}

void GraficoDePesos::mostrar(std::vector<Punto> puntos, basic::Date desde, basic::Date hasta)
{
    puntos_ = std::move(puntos);
    desde_ = desde;
    hasta_ = hasta;
    update();
}

std::vector<forms::ChartValue> GraficoDePesos::chartValues() const
{
    std::vector<forms::ChartValue> valores;
    for (const Punto &punto : puntos_)
        valores.push_back({basic::format(punto.dia, u"dd/mm/yyyy"), punto.gramos});
    return valores;
}

QImage GraficoDePesos::imagen(QSize medida) const
{
    QImage imagen(medida, QImage::Format_RGB32);
    QPainter pintor(&imagen);
    pintor.setFont(font());
    pintar(pintor, QRectF(QPointF(), medida));
    return imagen;
}

void GraficoDePesos::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintar(pintor, rect());
}

void GraficoDePesos::pintar(QPainter &pintor, const QRectF &hoja) const
{
    pintor.fillRect(hoja, Qt::white);
    if (puntos_.empty())
        return;
    pintor.setRenderHint(QPainter::Antialiasing);
    const QFontMetricsF medidas(pintor.font());
    const double renglon = medidas.height(), margen = medidas.horizontalAdvance(u"000,00 Kg."_s) + 8;
    const QRectF cuadro = hoja.adjusted(margen, renglon, -margen / 2, -2 * renglon);

    const auto [menor, mayor] = std::ranges::minmax_element(puntos_, {}, &Punto::gramos);
    const double escalon = paso(std::max(mayor->gramos - menor->gramos, 1000.0), rayasDePeso);
    const double abajo = (std::floor(menor->gramos / escalon) - 1) * escalon;
    const double arriba = (std::ceil(mayor->gramos / escalon) + 1) * escalon;
    const double dias = std::max(hasta_.serial() - desde_.serial(), 1.0);
    const auto x = [&](double serial) {
        return cuadro.left() + (serial - desde_.serial()) / dias * cuadro.width();
    };
    const auto y = [&](double gramos) {
        return cuadro.bottom() - (gramos - abajo) / (arriba - abajo) * cuadro.height();
    };

    for (double gramos = std::max(abajo, 0.0); gramos <= arriba; gramos += escalon) {
        pintor.setPen(grilla);
        pintor.drawLine(QPointF(cuadro.left(), y(gramos)), QPointF(cuadro.right(), y(gramos)));
        pintor.setPen(letras);
        pintor.drawText(QRectF(hoja.left(), y(gramos) - renglon / 2, margen - 6, renglon),
                        Qt::AlignRight | Qt::AlignVCenter,
                        basic::format(gramos / 1000, escalon < 1000 ? u"0.0" : u"0") + u" Kg."_s);
    }
    for (int raya = 0; raya < rayasDeFecha; ++raya) {
        const double serial = desde_.serial() + std::round(dias * raya / (rayasDeFecha - 1));
        pintor.setPen(grilla);
        pintor.drawLine(QPointF(x(serial), cuadro.top()), QPointF(x(serial), cuadro.bottom()));
        pintor.setPen(letras);
        pintor.drawText(QRectF(x(serial) - margen, cuadro.bottom() + renglon / 2 + 2, 2 * margen, renglon),
                        Qt::AlignCenter, basic::format(basic::Date::fromSerial(serial), u"dd/mm/yyyy"));
    }

    QPolygonF trazo;
    for (const Punto &punto : puntos_)
        trazo << QPointF(x(punto.dia.serial()), y(punto.gramos));
    pintor.setPen(QPen(linea, 1.8));
    pintor.drawPolyline(trazo);
    pintor.setBrush(linea);
    for (const QPointF &punto : trazo)
        pintor.drawEllipse(punto, radio, radio);
}

#include "moc_graficoDePesos.cpp"
