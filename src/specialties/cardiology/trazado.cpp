#include "specialties/cardiology/trazado.h"

#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

Trazado::Trazado(const QString &nombre)
{
    setObjectName(nombre);
    setAccessibleName(u"Trazado del electrocardiograma"_s);
    setMinimumSize(240, 160);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Trazado::mostrar(const QString &archivo)
{
    if (archivo == archivo_)
        return;
    archivo_ = archivo;
    leer();
    update();
}

/// Read no larger than it is shown, which is what makes the step between records quick.
void Trazado::leer()
{
    lugar_ = size() * devicePixelRatio();
    imagen_ = {};
    if (!archivo_.isEmpty()) {
        QImageReader lector(archivo_);
        lector.setAutoTransform(true);
        if (const QSize medida = lector.size();
            medida.width() > lugar_.width() || medida.height() > lugar_.height())
            lector.setScaledSize(medida.scaled(lugar_, Qt::KeepAspectRatio));
        imagen_ = lector.read();
    }
    setToolTip(imagen_.isNull() ? QString() : archivo_);
}

void Trazado::paintEvent(QPaintEvent *)
{
    if (const QSize lugar = size() * devicePixelRatio();
        lugar.width() > lugar_.width() || lugar.height() > lugar_.height())
        leer();
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    if (imagen_.isNull()) {
        pintor.setPen(QColor(0x5a, 0x67, 0x75));
        pintor.drawText(rect(), Qt::AlignCenter, u"Sin trazado"_s);
        return;
    }
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect lugar(QPoint(), imagen_.size().scaled(size(), Qt::KeepAspectRatio));
    lugar.moveCenter(rect().center());
    pintor.drawImage(lugar, imagen_);
}

#include "moc_trazado.cpp"
