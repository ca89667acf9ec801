#include "specialties/cardiology/trazado.h"

#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize bastante(1600, 1200); ///< a screen shows no more of it

} // namespace

Trazado::Trazado(const QString &nombre)
{
    setObjectName(nombre);
    setAccessibleName(u"Trazado del electrocardiograma"_s);
    setMinimumSize(240, 160);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

/// Read no larger than a screen shows it, which is what makes the step between records quick.
void Trazado::mostrar(const QString &archivo)
{
    if (archivo == archivo_)
        return;
    archivo_ = archivo;
    imagen_ = {};
    if (!archivo.isEmpty()) {
        QImageReader lector(archivo);
        lector.setAutoTransform(true);
        if (const QSize medida = lector.size();
            medida.width() > bastante.width() || medida.height() > bastante.height())
            lector.setScaledSize(medida.scaled(bastante, Qt::KeepAspectRatio));
        imagen_ = lector.read();
    }
    setToolTip(imagen_.isNull() ? QString() : archivo);
    update();
}

void Trazado::paintEvent(QPaintEvent *)
{
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
