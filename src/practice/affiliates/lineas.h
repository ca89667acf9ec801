#pragma once

#include <QFile>
#include <QString>
#include <QStringDecoder>

#include <optional>

/// The lines of a text file that another program has written, in whatever set of characters.
namespace afiliados
{

enum class Letras { Utf8, Windows1252, Codigo850 };
QString nombre(Letras letras); ///< as a person calls it

/// What a file is written in, told from some of it.
Letras letrasDe(const QByteArray &muestra);

/// Reads a file line by line, without its line ends. It may be longer than the memory.
class Lineas
{
public:
    /// Reads it once, to count its lines and to know its letters; false when it cannot be read.
    bool abrir(const QString &archivo);
    qint64 cantidad() const { return cantidad_; }
    Letras letras() const { return letras_; }

    /// The next line as it stands in the file; nothing behind the last.
    std::optional<QByteArray> siguiente();
    /// It in characters.
    QString texto(const QByteArray &linea);

private:
    QFile archivo_;
    qint64 cantidad_ = 0;
    Letras letras_ = Letras::Utf8;
    QStringDecoder lector_;
};

} // namespace afiliados
