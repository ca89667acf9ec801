#include "paediatrics/pressure/presionEnPalabras.h"

#include "core/session/session.h"
#include "paediatrics/anthropometry/referencia.h"
#include "paediatrics/anthropometry/tablaLms.h"
#include "platform/dao/sqltext.h"

#include <QFile>

#include <array>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace presion
{

namespace
{

constexpr double anioCentral = 10;
constexpr double diasDelAnio = 365.25;
constexpr double primerAnio = 1, finDeLaReferencia = 18;

/// The regression of one pressure on age and height.
struct Coeficientes {
    double alfa;
    std::array<double, 4> beta, gamma; ///< of the powers of age and of the height's score
    double sigma;

    double media(double anios, double zDeTalla) const
    {
        double suma = alfa;
        for (std::size_t i = 0; i < beta.size(); ++i) {
            const auto potencia = static_cast<double>(i + 1);
            suma +=
                beta[i] * std::pow(anios - anioCentral, potencia) + gamma[i] * std::pow(zDeTalla, potencia);
        }
        return suma;
    }
};

/// By kind, "V+" to "M-".
std::map<QByteArray, Coeficientes> leer()
{
    QFile csv(u":/presion/presion_coeficientes.csv"_s);
    if (!csv.open(QIODevice::ReadOnly))
        qFatal("Falta la referencia %s", qUtf8Printable(csv.fileName())); // compiled into the program
    std::map<QByteArray, Coeficientes> todos;
    csv.readLine();
    while (!csv.atEnd()) {
        const QByteArrayList campos = csv.readLine().trimmed().split(',');
        Coeficientes &c = todos[campos[0]];
        c.alfa = campos[1].toDouble();
        for (int i = 0; i < 4; ++i) {
            c.beta[static_cast<std::size_t>(i)] = campos[2 + i].toDouble();
            c.gamma[static_cast<std::size_t>(i)] = campos[6 + i].toDouble();
        }
        c.sigma = campos[10].toDouble();
    }
    return todos;
}

const Coeficientes *coeficientes(Cual cual, QChar letra, double anios)
{
    static const std::map<QByteArray, Coeficientes> todos = leer();
    if (anios < primerAnio || anios >= finDeLaReferencia)
        return nullptr;
    const QString tipo = letra + (cual == Cual::Maxima ? u"+"_s : u"-"_s);
    const auto hallados = todos.find(tipo.toLatin1());
    return hallados != todos.end() ? &hallados->second : nullptr;
}

/// The report's limits: from P90, or from 120 over 80, a pressure is not normal any more, from P95 it is
/// high, and from 5 mmHg over P99 it asks for treatment at once.
QString nombre(Cual cual, double valor, double percentil, double p99)
{
    constexpr long bajo = 5, normalAlta = 90, alta = 95;
    constexpr double sobreP99 = 5, maximaDeAdulto = 120, minimaDeAdulto = 80;
    const long dicho = std::lround(percentil); // the name goes by the percentile as it is told
    if (valor > p99 + sobreP99)
        return u"muy alta"_s;
    if (dicho >= alta)
        return u"alta"_s;
    if (dicho >= normalAlta || valor >= (cual == Cual::Maxima ? maximaDeAdulto : minimaDeAdulto))
        return u"normal alta"_s;
    return dicho < bajo ? u"baja"_s : u"normal"_s;
}

QString talla(std::optional<double> z)
{
    return z ? u"para talla P%1"_s.arg(std::lround(paediatrics::percentilDe(*z))) : u"para talla mediana"_s;
}

} // namespace

std::optional<double> puntajeZ(Cual cual, QChar letra, double anios, double zDeTalla, double valor)
{
    const Coeficientes *c = coeficientes(cual, letra, anios);
    return c ? std::optional((valor - c->media(anios, zDeTalla)) / c->sigma) : std::nullopt;
}

std::optional<double> valorEn(Cual cual, QChar letra, double anios, double zDeTalla, double z)
{
    const Coeficientes *c = coeficientes(cual, letra, anios);
    return c ? std::optional(c->media(anios, zDeTalla) + z * c->sigma) : std::nullopt;
}

QString enPalabras(Cual cual, QChar letra, double anios, std::optional<double> zDeTalla, double valor)
{
    constexpr double z99 = 2.3263;
    const double estatura = zDeTalla.value_or(0);
    const auto z = puntajeZ(cual, letra, anios, estatura, valor);
    if (!z)
        return u"sin referencia para la edad"_s;
    return u"%1, %2 %3"_s.arg(
        paediatrics::percentilYPuntaje(*z),
        nombre(cual, valor, paediatrics::percentilDe(*z), *valorEn(cual, letra, anios, estatura, z99)),
        talla(zDeTalla));
}

std::optional<double> zDeTalla(qint64 paciente, const QString &sexo, basic::Date nacimiento, basic::Date dia)
{
    dao::Recordset medida = MODULE11::BaseDatos.openRecordset(
        u"Select top 1 fecha, Talla from Medidas where Paciente = %1 and Talla > 0 and fecha <= %2 order by fecha desc"_s
            .arg(QString::number(paciente), dao::cdate(dia)));
    const paediatrics::TablaLms *tabla = paediatrics::TablaLms::de(u"cdc_talla_0_20", sexo);
    if (medida.eof() || !tabla)
        return std::nullopt;
    const auto parametros =
        tabla->en(static_cast<double>(medida[u"fecha"].date().wholeDays() - nacimiento.wholeDays()));
    return parametros ? std::optional(paediatrics::puntajeZ(*parametros, medida[u"Talla"].number()))
                      : std::nullopt;
}

QString enPalabras(Cual cual, qint64 paciente, const QString &sexo,
                   const std::optional<basic::Date> &nacimiento, const Toma &toma)
{
    const QString medida = (cual == Cual::Maxima ? u"Máxima %1: "_s : u"Mínima %1: "_s)
                               .arg(basic::Value(toma.valor(cual)).text());
    const QChar letra = sexo.isEmpty() ? QChar() : sexo[0].toUpper();
    if ((letra != u'V' && letra != u'M') || !nacimiento)
        return medida + u"sin referencia"_s;
    const auto dias = static_cast<double>(toma.fecha.wholeDays() - nacimiento->wholeDays());
    return medida + enPalabras(cual, letra, dias / diasDelAnio,
                               zDeTalla(paciente, sexo, *nacimiento, toma.fecha), toma.valor(cual));
}

} // namespace presion
