#include "paediatrics/perinatal/alNacer.h"

#include "paediatrics/anthropometry/referencia.h"
#include "paediatrics/anthropometry/tablaLms.h"
#include "platform/basic/runtime.h"

#include <QFile>
#include <QRegularExpression>

#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace perinatal
{

const QString fuenteAlNacer = u"INTERGROWTH-21st (Villar y col., Lancet 2014;384:857 y 2016;387:844)"_s;

namespace
{

constexpr int diasDeSemana = 7;
constexpr double gramosDeKilo = 1000;
constexpr long primeroAdecuado = 10, ultimoAdecuado = 90; ///< percentiles

/// The distribution of a measure at one gestational age, in kilograms or centimetres. Very preterm babies
/// have the normal one, of the logarithm for the weight; from 33 weeks on it is a skewed t, whose two halves
/// have widths of their own.
struct Distribucion {
    enum Modelo { LogNormal, Normal, TAsimetrica } modelo;
    double mu, sigma, nu, tau;
};

Distribucion::Modelo modeloDe(const QByteArray &nombre)
{
    return nombre == "lognormal" ? Distribucion::LogNormal
           : nombre == "normal"  ? Distribucion::Normal
                                 : Distribucion::TAsimetrica;
}

using Clave = std::tuple<QByteArray, QByteArray, int>; ///< measure, letter of the sex, days
using Tabla = std::map<Clave, Distribucion>;

Tabla leerTabla()
{
    QFile csv(u":/perinatal/peso_nacimiento.csv"_s);
    if (!csv.open(QIODevice::ReadOnly))
        qFatal("Falta la referencia %s", qUtf8Printable(csv.fileName())); // compiled into the program
    Tabla tabla;
    csv.readLine();
    while (!csv.atEnd()) {
        const QByteArrayList campos = csv.readLine().trimmed().split(',');
        tabla[{campos[0], campos[1], campos[2].toInt()}] = {modeloDe(campos[5]), campos[6].toDouble(),
                                                            campos[7].toDouble(), campos[8].toDouble(),
                                                            campos[9].toDouble()};
    }
    return tabla;
}

const Distribucion *distribucion(MedidaAlNacer medida, QStringView sexo, int dias)
{
    static const Tabla tabla = leerTabla();
    static const std::array<QByteArray, 3> nombres = {"peso", "longitud", "pc"};
    if (sexo != u"Varon" && sexo != u"Mujer")
        return nullptr;
    const auto hallada =
        tabla.find({nombres[static_cast<std::size_t>(medida)], sexo == u"Varon" ? "V" : "M", dias});
    return hallada != tabla.end() ? &hallada->second : nullptr;
}

/// The share of the reference below a value.
double probabilidad(const Distribucion &d, double valor)
{
    const boost::math::students_t t(d.tau);
    const double nu2 = d.nu * d.nu;
    if (valor < d.mu)
        return 2 * cdf(t, d.nu * (valor - d.mu) / d.sigma) / (1 + nu2);
    return (1 + 2 * nu2 * (cdf(t, (valor - d.mu) / (d.nu * d.sigma)) - 0.5)) / (1 + nu2);
}

double puntaje(const Distribucion &d, double valor)
{
    switch (d.modelo) {
    case Distribucion::LogNormal:
        return (std::log(valor) - d.mu) / d.sigma;
    case Distribucion::Normal:
        return (valor - d.mu) / d.sigma;
    case Distribucion::TAsimetrica:
        break;
    }
    constexpr double ultima = 1e-9; // beyond it no deviation is told
    return quantile(boost::math::normal(), std::clamp(probabilidad(d, valor), ultima, 1 - ultima));
}

struct Nombres {
    const char16_t *bajo, *adecuado, *alto;
};

/// The name goes by the percentile as it is told.
QStringView nombreDe(MedidaAlNacer medida, double z)
{
    static constexpr Nombres todos[] = {{u"bajo", u"adecuado", u"alto"},
                                        {u"baja", u"adecuada", u"alta"},
                                        {u"pequeño", u"adecuado", u"grande"}};
    const Nombres &nombres = todos[static_cast<int>(medida)];
    const long percentil = std::lround(paediatrics::percentilDe(z));
    return percentil < primeroAdecuado  ? nombres.bajo
           : percentil > ultimoAdecuado ? nombres.alto
                                        : nombres.adecuado;
}

QString semanas(int dias)
{
    const QString enteras = u"%1 semanas"_s.arg(dias / diasDeSemana);
    const int resto = dias % diasDeSemana;
    return resto == 0 ? enteras : u"%1 y %2 %3"_s.arg(enteras).arg(resto).arg(resto == 1 ? u"día" : u"días");
}

} // namespace

std::optional<double> puntajeZ(MedidaAlNacer medida, QStringView sexo, int diasDeGestacion, double valor)
{
    const Distribucion *d = valor > 0 ? distribucion(medida, sexo, diasDeGestacion) : nullptr;
    if (!d)
        return std::nullopt;
    return puntaje(*d, medida == MedidaAlNacer::Peso ? valor / gramosDeKilo : valor);
}

QString enPalabras(MedidaAlNacer medida, QStringView sexo, int diasDeGestacion, double valor)
{
    const auto z = puntajeZ(medida, sexo, diasDeGestacion, valor);
    if (!z)
        return {};
    return u"%1, %2 para %3"_s.arg(paediatrics::percentilYPuntaje(*z), nombreDe(medida, *z),
                                   semanas(diasDeGestacion));
}

std::optional<int> diasDeGestacion(const QString &escrito)
{
    static const QRegularExpression forma(
        u"^([0-9]{1,2})(?:\\s*\\+\\s*([0-6]))?\\s*(?:s|sem\\.?|semanas)?$"_s,
        QRegularExpression::CaseInsensitiveOption);
    if (const auto hallado = forma.match(escrito.trimmed()); hallado.hasMatch())
        return hallado.captured(1).toInt() * diasDeSemana + hallado.captured(2).toInt();
    const auto numero = basic::toNumber(escrito);
    if (!numero || *numero <= 0 || *numero >= 100)
        return std::nullopt;
    return static_cast<int>(basic::intPart(*numero * diasDeSemana));
}

} // namespace perinatal
