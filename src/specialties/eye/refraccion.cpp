#include "specialties/eye/refraccion.h"

#include "platform/basic/runtime.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace oftalmo
{

namespace
{

constexpr int medioGiro = 180, cuartoDeGiro = 90;
constexpr double mayorPotencia = 40; // dioptres; what is beyond is something else
const QStringList sinMedida = {u"Dedos"_s, u"Bultos"_s, u"Luz"_s, u"Ciego"_s};

double numero(QString texto)
{
    texto.remove(u' ');
    return texto.replace(u',', u'.').toDouble();
}

QString dioptrias(double valor)
{
    const QString sin = basic::format(qAbs(valor), u"0.00");
    return valor < 0 ? u'-' + sin : u'+' + sin;
}

} // namespace

Refraccion Refraccion::transpuesta() const
{
    if (cilindro == 0)
        return *this;
    return {esfera + cilindro, -cilindro, eje > cuartoDeGiro ? eje - cuartoDeGiro : eje + cuartoDeGiro};
}

std::optional<Refraccion> refraccionDe(const QString &texto)
{
    static const QRegularExpression forma(
        u"^\\s*(?<esfera>[+-]?\\s*\\d+(?:[.,]\\d+)?|neutro|plano|n)\\s*(?:esf\\.?)?"
        "(?:\\s*(?<cilindro>[+-]\\s*\\d+(?:[.,]\\d+)?)\\s*(?:cil\\.?)?\\s*(?:x|a|eje|@|\\*)\\s*(?<eje>\\d{1,3})\\s*°?)?"
        "\\s*$"_s,
        QRegularExpression::CaseInsensitiveOption);
    const auto hallado = forma.match(texto);
    if (!hallado.hasMatch())
        return std::nullopt;
    Refraccion leida{numero(hallado.captured(u"esfera"_s)), numero(hallado.captured(u"cilindro"_s)),
                     hallado.captured(u"eje"_s).toInt()};
    if (leida.eje > medioGiro || qAbs(leida.esfera) > mayorPotencia || qAbs(leida.cilindro) > mayorPotencia)
        return std::nullopt;
    if (leida.cilindro != 0 && leida.eje == 0)
        leida.eje = medioGiro;
    return leida;
}

QString enPalabras(const Refraccion &refraccion)
{
    if (refraccion.cilindro == 0)
        return dioptrias(refraccion.esfera);
    return u"%1 %2 x %3°"_s.arg(dioptrias(refraccion.esfera), dioptrias(refraccion.cilindro))
        .arg(refraccion.eje);
}

QString cuentaDe(const QString &texto)
{
    const auto refraccion = refraccionDe(texto);
    if (!refraccion)
        return {};
    const QString equivalente = u"E.E. "_s + dioptrias(refraccion->equivalenteEsferico());
    return refraccion->cilindro == 0 ? equivalente
                                     : equivalente + u"   Transp. "_s + enPalabras(refraccion->transpuesta());
}

std::optional<double> agudezaDe(const QString &texto)
{
    static const QRegularExpression forma(
        u"^\\s*(\\d+(?:[.,]\\d+)?)\\s*(?:/\\s*(\\d+))?\\s*[pP]?[+-]?\\s*$"_s);
    if (sinMedida.contains(texto.trimmed(), Qt::CaseInsensitive))
        return 0;
    const auto hallado = forma.match(texto);
    if (!hallado.hasMatch())
        return std::nullopt;
    const double visto = numero(hallado.captured(1));
    const double sobre = hallado.hasCaptured(2) ? hallado.captured(2).toDouble() : 1;
    if (sobre == 0 || visto / sobre > 2)
        return std::nullopt;
    return visto / sobre;
}

std::optional<double> presionDe(const QString &texto)
{
    static const QRegularExpression forma(u"^\\s*(\\d{1,2}(?:[.,]\\d+)?)(?!\\d)"_s);
    const auto hallado = forma.match(texto);
    return hallado.hasMatch() ? std::optional(numero(hallado.captured(1))) : std::nullopt;
}

QStringList escalaDeAgudeza()
{
    QStringList escala;
    for (int decimos = 10; decimos >= 1; --decimos)
        escala += u"%1/10"_s.arg(decimos);
    return escala + sinMedida;
}

} // namespace oftalmo
