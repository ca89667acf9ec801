#include "clinical/laboratory/impresionDeComplemento.h"

#include "platform/richtext/print.h"

#include <QImageReader>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace complementos
{

namespace
{

constexpr int mayorLado = 2000; // dots; more are not seen on paper

QImage leerImagen(const QString &archivo)
{
    QImageReader lector(archivo);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    const QSize entera = lector.size();
    if (entera.width() > mayorLado || entera.height() > mayorLado)
        lector.setScaledSize(entera.scaled(mayorLado, mayorLado, Qt::KeepAspectRatio));
    return lector.read();
}

void encabezar(QTextDocument &documento, const QString &titulo)
{
    QTextCursor cursor(&documento);
    cursor.insertBlock(cursor.blockFormat(), cursor.blockCharFormat());
    cursor.movePosition(QTextCursor::Start);
    QTextCharFormat destacada;
    destacada.setFontWeight(QFont::Bold);
    destacada.setFontPointSize(14);
    QTextBlockFormat debajo;
    debajo.setBottomMargin(12);
    cursor.setBlockFormat(debajo);
    cursor.insertText(titulo, destacada);
}

} // namespace

void imprimir(const QTextDocument &informe, const QStringList &imagenes, const printing::Choice &impresora)
{
    const std::unique_ptr<QTextDocument> documento(informe.clone());
    encabezar(*documento, impresora.name);
    QTextCursor cursor(documento.get());
    cursor.movePosition(QTextCursor::End);
    for (const QString &archivo : imagenes) {
        const QImage imagen = leerImagen(archivo);
        if (imagen.isNull())
            continue;
        documento->addResource(QTextDocument::ImageResource, QUrl(archivo), imagen);
        QTextBlockFormat centrada;
        centrada.setAlignment(Qt::AlignHCenter);
        centrada.setTopMargin(12);
        cursor.insertBlock(centrada);
        QTextImageFormat lugar;
        lugar.setName(archivo);
        lugar.setWidth(imagen.width());
        lugar.setHeight(imagen.height());
        cursor.insertImage(lugar);
    }
    richtext::print(*documento, impresora, impresora.name);
}

} // namespace complementos
