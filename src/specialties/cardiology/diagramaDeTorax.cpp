#include "specialties/cardiology/diagramaDeTorax.h"

#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace torax
{

namespace
{

constexpr int noSePuedeUsar = 75;
constexpr int blancosDeFlecha = 184, blancosDeTexto = 10;
constexpr qsizetype despuesDelLugar = 14;
constexpr int cifrasDelNumero = 12;

QString conCeros(double numero, int cifras)
{
    return u"%1"_s.arg(std::llround(std::min(std::fabs(numero), mayorLugar)), cifras, 10, QChar(u'0'));
}

QString renglon(const Elemento &e)
{
    const QChar clase = e.simbolo ? u'P' : u'T';
    const QString contenido =
        e.simbolo ? conCeros(e.simbolo, 2) + QString(blancosDeFlecha, u' ')
                  : e.texto.trimmed() + QString(e.texto.trimmed().size() + blancosDeTexto, u' ');
    return clase + conCeros(e.indice, 2) + (e.lugar.y() < 0 ? u'-' : u'+') + conCeros(e.lugar.y(), 5) +
           conCeros(std::max(e.lugar.x(), 0.0), 5) + contenido;
}

} // namespace

QString archivo(qint64 paciente, basic::Date fecha, QStringView extension)
{
    return u"%1"_s.arg(paciente, cifrasDelNumero, 10, QChar(u'0')) + basic::format(fecha, u"ddmmyyyy") +
           extension.toString();
}

qint64 pacienteDe(const QString &archivo)
{
    return archivo.left(cifrasDelNumero).toLongLong();
}

QString enTexto(const std::vector<Elemento> &elementos)
{
    QString texto;
    for (const Elemento &elemento : elementos)
        texto += renglon(elemento) + u"\r\n"_s;
    return texto + u"O_\r\n"_s;
}

std::vector<Elemento> deTexto(const QString &texto)
{
    std::vector<Elemento> elementos;
    for (const QString &linea : texto.split(u'\n')) {
        const QChar clase = linea.isEmpty() ? QChar() : linea.front();
        if ((clase != u'P' && clase != u'T') || linea.size() <= despuesDelLugar)
            continue;
        const auto numero = [&](qsizetype desde, qsizetype cifras) {
            return linea.mid(desde, cifras).toInt();
        };
        Elemento elemento{numero(1, 2),
                          QPointF(numero(9, 5), linea[3] == u'-' ? -numero(4, 5) : numero(4, 5))};
        if (clase == u'P')
            elemento.simbolo = numero(despuesDelLugar, 2);
        else
            elemento.texto = linea.mid(despuesDelLugar).trimmed();
        const bool conocido =
            clase == u'P' ? elemento.simbolo >= 1 && elemento.simbolo <= flechas : !elemento.texto.isEmpty();
        if (conocido)
            elementos.push_back(elemento);
    }
    return elementos;
}

std::vector<Elemento> leer(const QString &archivo)
{
    QFile fuente(archivo);
    if (!fuente.exists())
        return {};
    if (!fuente.open(QIODevice::ReadOnly))
        throw basic::Error(noSePuedeUsar,
                           u"No se puede leer el archivo %1: %2"_s.arg(archivo, fuente.errorString()));
    return deTexto(QString::fromUtf8(fuente.readAll()));
}

void guardar(const QString &archivo, const std::vector<Elemento> &elementos)
{
    QSaveFile destino(archivo);
    if (destino.open(QIODevice::WriteOnly))
        destino.write(enTexto(elementos).toUtf8());
    if (!destino.commit())
        throw basic::Error(noSePuedeUsar,
                           u"No se puede escribir el archivo %1: %2"_s.arg(archivo, destino.errorString()));
}

} // namespace torax
