#include "figures/grafico.h"

#include "figures/dibujo.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/printing/printer.h"

#include <QDir>
#include <QHelpEvent>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace figures
{

namespace
{

constexpr int nitidez = 2; ///< dots of a picture for one of the screen

QString enTexto(const Dato &dato)
{
    return u"%1: %2"_s.arg(dato.rotulo, QString::number(dato.valor));
}

QByteArray tabla(const Figura &figura)
{
    QString csv = u"\"%1\";\"%2\"\r\n"_s.arg(figura.ejeX, figura.ejeY);
    for (const Dato &dato : figura.datos)
        csv += u"\"%1\";%2\r\n"_s.arg(QString(dato.rotulo).replace(u'"', u"\"\""_s),
                                      QString::number(dato.valor));
    return csv.toUtf8();
}

[[noreturn]] void noSeGuarda(const QString &archivo)
{
    throw basic::Error(75, u"No se pudo escribir el archivo %1."_s.arg(archivo));
}

} // namespace

Grafico::Grafico(const QString &nombre)
{
    setObjectName(nombre);
    setMinimumSize(420, 280);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setMouseTracking(true);
}

void Grafico::mostrar(Figura figura, Tipo tipo)
{
    figura_ = std::move(figura);
    tipo_ = tipo;
    setAccessibleName(figura_.titulo);
    setWindowTitle(figura_.titulo); // its caption, for who asks for it
    update();
}

std::vector<forms::ChartValue> Grafico::chartValues() const
{
    std::vector<forms::ChartValue> valores;
    for (const Dato &dato : figura_.datos)
        valores.push_back({dato.rotulo, dato.valor});
    return valores;
}

void Grafico::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    if (!figura_.datos.empty())
        dibujar(pintor, rect(), figura_, tipo_);
}

int Grafico::datoEn(QPointF punto) const
{
    const Disposicion lugar = disponer(rect(), QFontMetricsF(font()), figura_, tipo_);
    for (std::size_t i = 0; i < lugar.formas.size(); ++i)
        if (lugar.formas[i].contains(punto))
            return static_cast<int>(i);
    return -1;
}

bool Grafico::event(QEvent *evento)
{
    if (evento->type() != QEvent::ToolTip)
        return QWidget::event(evento);
    const auto *ayuda = static_cast<QHelpEvent *>(evento);
    const int dato = datoEn(ayuda->pos());
    QToolTip::showText(ayuda->globalPos(),
                       dato < 0 ? QString() : enTexto(figura_.datos[static_cast<std::size_t>(dato)]), this);
    return true;
}

void Grafico::mouseReleaseEvent(QMouseEvent *evento)
{
    if (const int dato = datoEn(evento->position()); dato >= 0)
        emit elegido(dato);
}

void Grafico::guardar() const
{
    const QString archivo = forms::saveFileDialog(u"Guardar"_s, QDir::home().filePath(u"grafico.png"_s),
                                                  u"Imagen (*.png);;Dibujo (*.svg);;Tabla (*.csv)"_s);
    if (archivo.isEmpty())
        return;
    if (archivo.endsWith(u".csv"_s, Qt::CaseInsensitive)) {
        QSaveFile salida(archivo);
        if (!salida.open(QIODevice::WriteOnly) || salida.write(tabla(figura_)) < 0 || !salida.commit())
            noSeGuarda(archivo);
    } else if (archivo.endsWith(u".svg"_s, Qt::CaseInsensitive)) {
        QSvgGenerator dibujo;
        dibujo.setFileName(archivo);
        dibujo.setSize(size());
        dibujo.setViewBox(rect());
        QPainter pintor;
        if (!pintor.begin(&dibujo))
            noSeGuarda(archivo);
        dibujar(pintor, rect(), figura_, tipo_);
    } else {
        QImage imagen(size() * nitidez, QImage::Format_RGB32);
        imagen.setDevicePixelRatio(nitidez);
        imagen.fill(Qt::white);
        QPainter pintor(&imagen);
        pintor.setFont(font());
        dibujar(pintor, rect(), figura_, tipo_);
        pintor.end();
        if (!imagen.save(archivo, "PNG"))
            noSeGuarda(archivo);
    }
}

void Grafico::imprimir() const
{
    const auto impresora = printing::chooserDialog(figura_.titulo);
    if (!impresora)
        return;
    printing::Job trabajo(*impresora, impresora->name,
                          QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                      QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
    QPainter &pintor = trabajo.painter();
    const double porPixel = trabajo.device().logicalDpiX() / 96.0;
    const QRectF hoja = trabajo.device().pageLayout().paintRectPixels(trabajo.device().logicalDpiX());
    pintor.scale(porPixel, porPixel);
    pintor.setFont(font());
    dibujar(pintor, QRectF(hoja.topLeft() / porPixel, hoja.size() / porPixel), figura_, tipo_);
    trabajo.finish();
}

} // namespace figures

#include "moc_grafico.cpp"
