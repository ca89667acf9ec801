#include "paediatrics/vaccines/certificado.h"

#include "platform/forms/canvas.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace vacunas
{

namespace
{

constexpr double borde = 850, altoDelTitulo = 700; // twips

void pintarPagina(QPainter &pintor, QSizeF papel, forms::Canvas &hoja, const QString &titulo)
{
    const QRectF lugar(borde, borde, papel.width() - 2 * borde, papel.height() - 2 * borde);
    QFont letra;
    letra.setPixelSize(280);
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.drawText(QRectF(lugar.topLeft(), QSizeF(lugar.width(), altoDelTitulo)),
                    Qt::AlignLeft | Qt::TextWordWrap, titulo);
    QSizeF medida = hoja.sizeTwips();
    medida.scale(lugar.width(), lugar.height() - altoDelTitulo, Qt::KeepAspectRatio);
    hoja.paint(pintor, QRectF({lugar.left(), lugar.top() + altoDelTitulo}, medida));
}

} // namespace

/// A printer makes its copies itself; a file holds a page for each.
void imprimirCertificado(forms::Canvas &hoja, const QString &titulo, const printing::Choice &impresora)
{
    const QPageSize tamano(QPageSize::A4);
    constexpr double twipsPorPunto = 20, twipsPorPulgada = 1440;
    printing::Job trabajo(impresora, titulo, QPageLayout(tamano, QPageLayout::Landscape, {}));
    const int paginas = impresora.printer.isEmpty() ? impresora.copies : 1;
    for (int pagina = 0; pagina < paginas; ++pagina) {
        if (pagina > 0)
            trabajo.newPage();
        QPainter &pintor = trabajo.painter();
        const double puntos = trabajo.device().logicalDpiX() / twipsPorPulgada;
        pintor.save();
        pintor.scale(puntos, puntos);
        pintarPagina(pintor, tamano.sizePoints().transposed() * twipsPorPunto, hoja, titulo);
        pintor.restore();
    }
    trabajo.finish();
}

} // namespace vacunas
