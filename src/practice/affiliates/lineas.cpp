#include "practice/affiliates/lineas.h"

#include <uchardet/uchardet.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace afiliados
{

namespace
{

constexpr qsizetype muestraMayor = 1 << 20;
const QByteArray marcaDeOrden = "\xEF\xBB\xBF";

struct Juego {
    Letras letras;
    const char *lector;
    QStringView nombre;
};
constexpr Juego juegos[] = {
    {Letras::Utf8, "UTF-8", u"UTF-8"},
    {Letras::Windows1252, "windows-1252", u"Windows-1252"},
    {Letras::Codigo850, "IBM850", u"página de códigos 850"},
};

const Juego &juego(Letras letras)
{
    return *std::ranges::find(juegos, letras, &Juego::letras);
}

bool esAscii(const QByteArray &linea)
{
    return std::ranges::all_of(linea, [](char c) { return static_cast<uchar>(c) < 0x80; });
}

bool esUtf8(const QByteArray &texto)
{
    QStringDecoder lector(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString leido = lector(texto);
    return !leido.isEmpty() && !lector.hasError();
}

QByteArray loQueDice(const QByteArray &muestra)
{
    const std::unique_ptr<uchardet, decltype(&uchardet_delete)> sonda(uchardet_new(), uchardet_delete);
    uchardet_handle_data(sonda.get(), muestra.constData(), static_cast<std::size_t>(muestra.size()));
    uchardet_data_end(sonda.get());
    return uchardet_get_charset(sonda.get());
}

/// How many of the bytes are letters of Spanish in a set.
qsizetype letrasEspanolas(const QByteArray &muestra, QByteArrayView letras)
{
    return std::ranges::count_if(muestra, [letras](char c) { return letras.contains(c); });
}

constexpr QByteArrayView en1252 = "\xE1\xE9\xED\xF3\xFA\xF1\xFC\xC1\xC9\xCD\xD3\xDA\xD1\xDC\xBA\xAA";
constexpr QByteArrayView en850 = "\xA0\x82\xA1\xA2\xA3\xA4\x81\xB5\x90\xD6\xE0\xE9\xA5\x9A\xA7\xA6";

} // namespace

QString nombre(Letras letras)
{
    return juego(letras).nombre.toString();
}

/// A roll of names is short of what tells a language: where the detector names neither set, or one of another
/// tongue, the letters of Spanish decide.
Letras letrasDe(const QByteArray &muestra)
{
    if (esAscii(muestra) || esUtf8(muestra))
        return Letras::Utf8;
    const QByteArray dicho = loQueDice(muestra);
    if (dicho == "IBM850")
        return Letras::Codigo850;
    return letrasEspanolas(muestra, en850) > letrasEspanolas(muestra, en1252) ? Letras::Codigo850
                                                                              : Letras::Windows1252;
}

bool Lineas::abrir(const QString &archivo)
{
    archivo_.setFileName(archivo);
    if (!archivo_.open(QIODevice::ReadOnly))
        return false;
    QByteArray muestra;
    cantidad_ = 0;
    while (const auto linea = siguiente()) {
        ++cantidad_;
        if (muestra.size() < muestraMayor && !esAscii(*linea))
            muestra += *linea + '\n';
    }
    letras_ = letrasDe(muestra);
    lector_ = QStringDecoder(juego(letras_).lector, QStringDecoder::Flag::Stateless);
    return archivo_.seek(0);
}

std::optional<QByteArray> Lineas::siguiente()
{
    if (archivo_.atEnd())
        return std::nullopt;
    const bool primera = archivo_.pos() == 0;
    QByteArray linea = archivo_.readLine();
    if (primera && linea.startsWith(marcaDeOrden))
        linea.remove(0, marcaDeOrden.size());
    while (linea.endsWith('\n') || linea.endsWith('\r'))
        linea.chop(1);
    return linea;
}

QString Lineas::texto(const QByteArray &linea)
{
    return lector_(linea);
}

} // namespace afiliados
