#include "core/reports/papel.h"

#include "platform/forms/canvas.h"

#include <QPagedPaintDevice>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace informes
{

namespace
{

constexpr double twipsPorPunto = 20;
constexpr int puntosDelTitulo = 14;
constexpr double borde = 850, separacion = 300; // twips

} // namespace

Papel::Papel(const printing::Choice &impresora)
    : trabajo_(impresora, impresora.name, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}))
{
    const QSizeF hoja = QPageSize(QPageSize::A4).sizePoints() * twipsPorPunto;
    lugar_ = QRectF(borde, borde, hoja.width() - 2 * borde, hoja.height() - 2 * borde);
    abajo_ = lugar_.top();
    escribir(impresora.name, puntosDelTitulo, true);
}

/// To be restored by whoever asks for it.
QPainter &Papel::enTwips()
{
    QPainter &pintor = trabajo_.painter();
    const double puntos = trabajo_.device().logicalDpiX() / 1440.0;
    pintor.save();
    pintor.scale(puntos, puntos);
    return pintor;
}

void Papel::pasarDePagina()
{
    trabajo_.newPage();
    abajo_ = lugar_.top();
}

void Papel::escribir(const QString &texto, int puntos, bool negrita)
{
    QPainter &pintor = enTwips();
    QFont letra;
    letra.setPixelSize(static_cast<int>(puntos * twipsPorPunto));
    letra.setBold(negrita);
    pintor.setFont(letra);
    const QRectF resto(lugar_.left(), abajo_, lugar_.width(), lugar_.height());
    QRectF ocupa = pintor.boundingRect(resto, Qt::TextWordWrap, texto);
    if (ocupa.bottom() > lugar_.bottom()) {
        pasarDePagina();
        ocupa.moveTop(lugar_.top());
    }
    pintor.drawText(ocupa, Qt::TextWordWrap, texto);
    pintor.restore();
    abajo_ = ocupa.bottom();
}

void Papel::dibujar(forms::Canvas &dibujo)
{
    const QSizeF medida = dibujo.sizeTwips() * (lugar_.width() / dibujo.sizeTwips().width());
    if (abajo_ > lugar_.top() && abajo_ + separacion + medida.height() > lugar_.bottom())
        pasarDePagina();
    QPainter &pintor = enTwips();
    dibujo.paint(pintor, QRectF({lugar_.left(), abajo_ + separacion}, medida));
    pintor.restore();
    abajo_ += medida.height() + 2 * separacion;
}

} // namespace informes
