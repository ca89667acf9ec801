#include "specialties/eye/archivo.h"

#include "platform/basic/environment.h"
#include "platform/basic/errors.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace oftalmo
{

namespace
{

constexpr qsizetype anchoDeTexto = 186, anchoDeCodigo = 2; // from position 15 on
constexpr qsizetype hastaElTexto = 14;
constexpr int mayorLugar = 99999;
constexpr int noSePudo = 75;

/// A break within a text would end its line.
QString enUnaLinea(QString texto)
{
    return texto.replace(u'\\', u"\\\\"_s).replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"\\n"_s);
}

QString enVarias(QStringView linea)
{
    QString texto;
    for (qsizetype i = 0; i < linea.size(); ++i) {
        const QStringView par = linea.sliced(i, std::min<qsizetype>(2, linea.size() - i));
        const bool salto = par == u"\\n";
        texto += salto ? u'\n' : linea[i];
        i += salto || par == u"\\\\" ? 1 : 0;
    }
    return texto;
}

QString enCifras(double valor, int cifras)
{
    const int entero = std::clamp(static_cast<int>(std::lround(valor)), 0, mayorLugar);
    return QString::number(entero).rightJustified(cifras, u'0');
}

QString registro(QChar clase, int indice, QPointF lugar, const QString &contenido)
{
    return clase + enCifras(indice, 2) + u'+' + enCifras(lugar.y(), 5) + enCifras(lugar.x(), 5) +
           contenido.leftJustified(anchoDeTexto) + u'\n';
}

QString archivoDe(const QString &base)
{
    const QString archivo = base + u".DAT"_s;
    return QFileInfo(archivo).isRelative() ? basic::programFile(archivo) : archivo;
}

[[noreturn]] void fallar(const QFileDevice &archivo)
{
    throw basic::Error(noSePudo, u"No se pudo usar el archivo del dibujo %1: %2"_s.arg(
                                     archivo.fileName(), archivo.errorString()));
}

} // namespace

QString enTexto(const Dibujo &dibujo)
{
    QString texto;
    for (const Sello &sello : dibujo.sellos)
        texto += registro(u'P', sello.indice, sello.lugar, sello.codigo.left(anchoDeCodigo));
    for (const Rotulo &rotulo : dibujo.rotulos)
        texto += registro(u'T', rotulo.indice, rotulo.lugar, enUnaLinea(rotulo.texto.trimmed()));
    return texto + u'O' + enUnaLinea(dibujo.observaciones) + u'\n';
}

Dibujo deTexto(const QString &texto)
{
    Dibujo dibujo;
    for (QStringView linea : QStringView(texto).split(u'\n')) {
        if (linea.endsWith(u'\r'))
            linea.chop(1);
        if (linea.startsWith(u'O'))
            dibujo.observaciones = enVarias(linea.sliced(1));
        if (linea.size() <= hastaElTexto || linea[3] != u'+')
            continue;
        bool hayIndice = false, hayArriba = false, hayIzquierda = false;
        const int indice = linea.sliced(1, 2).toInt(&hayIndice);
        const QPointF lugar(linea.sliced(9, 5).toInt(&hayIzquierda), linea.sliced(4, 5).toInt(&hayArriba));
        if (!hayIndice || !hayArriba || !hayIzquierda)
            continue;
        if (linea[0] == u'P')
            dibujo.sellos.push_back(
                {indice, lugar,
                 linea.sliced(hastaElTexto, std::min<qsizetype>(anchoDeCodigo, linea.size() - hastaElTexto))
                     .toString()});
        else if (linea[0] == u'T')
            dibujo.rotulos.push_back({indice, lugar, enVarias(linea.sliced(hastaElTexto).trimmed())});
    }
    return dibujo;
}

Dibujo leerDibujo(const QString &base)
{
    QFile archivo(archivoDe(base));
    if (base.isEmpty() || !archivo.exists())
        return {};
    if (!archivo.open(QIODevice::ReadOnly))
        fallar(archivo);
    return deTexto(QString::fromUtf8(archivo.readAll()));
}

void guardarDibujo(const QString &base, const Dibujo &dibujo)
{
    QSaveFile archivo(archivoDe(base));
    if (!archivo.open(QIODevice::WriteOnly) || archivo.write(enTexto(dibujo).toUtf8()) < 0 ||
        !archivo.commit())
        fallar(archivo);
}

QString nuevaBase()
{
    const QString momento = basic::now().toString(u"yyyyMMddhhmmss"_s);
    for (int otro = 0;; ++otro) {
        const QString base = otro == 0 ? momento : u"%1_%2"_s.arg(momento).arg(otro);
        QFile archivo(archivoDe(base));
        if (archivo.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return base;
        if (!archivo.exists())
            fallar(archivo);
    }
}

void borrarDibujo(const QString &base)
{
    QFile::remove(archivoDe(base));
}

} // namespace oftalmo
