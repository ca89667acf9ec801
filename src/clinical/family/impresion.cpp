#include "clinical/family/impresion.h"

#include "platform/forms/canvas.h"
#include "platform/printing/printer.h"

#include <QPagedPaintDevice>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace familia
{

namespace
{

constexpr double twipsPorPunto = 20;
constexpr double borde = 850, separacion = 300; // twips

/// The sheet being filled from the top, in twips.
class Papel
{
public:
    Papel(const printing::Choice &impresora, const QString &titulo)
        : trabajo_(impresora, titulo, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}))
    {
        const QSizeF hoja = QPageSize(QPageSize::A4).sizePoints() * twipsPorPunto;
        lugar_ = QRectF(borde, borde, hoja.width() - 2 * borde, hoja.height() - 2 * borde);
        abajo_ = lugar_.top();
    }

    void escribir(const QString &texto, int puntos, bool negrita = false)
    {
        QPainter &pintor = enTwips();
        QFont letra;
        letra.setPixelSize(static_cast<int>(puntos * twipsPorPunto));
        letra.setBold(negrita);
        pintor.setFont(letra);
        const QRectF resto(lugar_.left(), abajo_, lugar_.width(), lugar_.height());
        QRectF ocupa = pintor.boundingRect(resto, Qt::TextWordWrap, texto);
        if (ocupa.bottom() > lugar_.bottom()) {
            trabajo_.newPage();
            ocupa.moveTop(lugar_.top());
        }
        pintor.drawText(ocupa, Qt::TextWordWrap, texto);
        pintor.restore();
        abajo_ = ocupa.bottom();
    }

    /// As wide as the sheet.
    void dibujar(forms::Canvas &dibujo)
    {
        const QSizeF medida = dibujo.sizeTwips() * (lugar_.width() / dibujo.sizeTwips().width());
        QPainter &pintor = enTwips();
        dibujo.paint(pintor, QRectF({lugar_.left(), abajo_ + separacion}, medida));
        pintor.restore();
        abajo_ += medida.height() + 2 * separacion;
    }

    void terminar() { trabajo_.finish(); }

private:
    /// To be restored by whoever asks for it.
    QPainter &enTwips()
    {
        QPainter &pintor = trabajo_.painter();
        const double puntos = trabajo_.device().logicalDpiX() / 1440.0;
        pintor.save();
        pintor.scale(puntos, puntos);
        return pintor;
    }

    printing::Job trabajo_;
    QRectF lugar_;
    double abajo_ = 0;
};

} // namespace

void imprimir(forms::Canvas &arbol, const QString &titulo, const QStringList &lineas)
{
    printing::Choice impresora;
    if (!printing::defaultChoice(impresora))
        return;
    Papel papel(impresora, titulo);
    papel.escribir(titulo, 14, true);
    papel.dibujar(arbol);
    for (const QString &linea : lineas)
        papel.escribir(linea, 10);
    papel.terminar();
}

} // namespace familia
