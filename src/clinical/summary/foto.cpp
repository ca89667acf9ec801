#include "clinical/summary/foto.h"

#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace clinical
{

namespace
{

constexpr int noEsImagen = 481, sinEscribir = 75;

} // namespace

bool cambiaFoto(const QString &archivo, int mayorLado)
{
    const QString elegido = forms::openFileDialog(u"Foto del paciente"_s, QDir::homePath(),
                                                  u"Imágenes (*.bmp *.jpg *.jpeg *.png)"_s);
    if (elegido.isEmpty())
        return false;
    QImageReader lector(elegido);
    lector.setAutoTransform(true);
    const QImage foto = lector.read();
    if (foto.isNull())
        throw basic::Error(noEsImagen, u"El archivo %1 no es una imagen."_s.arg(elegido));
    QDir().mkpath(QFileInfo(archivo).absolutePath());
    QSaveFile guardada(archivo);
    const bool entera = foto.width() <= mayorLado && foto.height() <= mayorLado;
    const QImage aGuardar =
        entera ? foto : foto.scaled(mayorLado, mayorLado, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (!guardada.open(QIODevice::WriteOnly) || !aGuardar.save(&guardada, "BMP") || !guardada.commit())
        throw basic::Error(sinEscribir,
                           u"No se pudo guardar la foto en %1: %2"_s.arg(archivo, guardada.errorString()));
    return true;
}

} // namespace clinical
