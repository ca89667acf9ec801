#include "paediatrics/anthropometry/tablaLms.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

constexpr double ultimoDesvio = 3;

double entre(double parte, double antes, double despues)
{
    return antes + parte * (despues - antes);
}

} // namespace

TablaLms::TablaLms(const QString &archivo)
{
    QFile csv(archivo);
    if (!csv.open(QIODevice::ReadOnly))
        qFatal("Falta la referencia %s", qUtf8Printable(archivo)); // compiled into the program
    csv.readLine();
    while (!csv.atEnd()) {
        const QByteArrayList campos = csv.readLine().trimmed().split(',');
        if (campos.size() >= 4)
            filas_.push_back(
                {campos[0].toDouble(), {campos[1].toDouble(), campos[2].toDouble(), campos[3].toDouble()}});
    }
}

const TablaLms *TablaLms::de(QStringView referencia, QStringView sexo)
{
    if (sexo != u"Mujer" && sexo != u"Varon")
        return nullptr;
    static std::map<QString, TablaLms> leidas;
    const QString archivo =
        u":/crecimiento/%1_%2.csv"_s.arg(referencia, sexo == u"Mujer" ? u"mujeres" : u"varones");
    const auto hallada = leidas.find(archivo);
    return hallada != leidas.end() ? &hallada->second
                                   : &leidas.emplace(archivo, TablaLms(archivo)).first->second;
}

std::optional<TablaLms::Parametros> TablaLms::en(double edad) const
{
    const auto despues = std::ranges::lower_bound(filas_, edad, {}, &Fila::edad);
    if (despues == filas_.end())
        return std::nullopt;
    const Parametros &b = despues->parametros;
    if (despues->edad == edad)
        return b;
    if (despues == filas_.begin())
        return std::nullopt;
    const auto antes = despues - 1;
    const Parametros &a = antes->parametros;
    const double parte = (edad - antes->edad) / (despues->edad - antes->edad);
    return Parametros{entre(parte, a.l, b.l), entre(parte, a.m, b.m), entre(parte, a.s, b.s)};
}

double valorEn(const TablaLms::Parametros &p, double z)
{
    return p.l == 0 ? p.m * std::exp(p.s * z) : p.m * std::pow(1 + p.l * p.s * z, 1 / p.l);
}

double puntajeZ(const TablaLms::Parametros &p, double valor)
{
    if (valor <= 0)
        return -std::numeric_limits<double>::infinity();
    return p.l == 0 ? std::log(valor / p.m) / p.s : (std::pow(valor / p.m, p.l) - 1) / (p.l * p.s);
}

double puntajeZConExtremosRectos(const TablaLms::Parametros &p, double valor)
{
    const double z = puntajeZ(p, valor);
    if (std::abs(z) <= ultimoDesvio)
        return z;
    const double signo = z > 0 ? 1 : -1;
    const double tercero = valorEn(p, signo * ultimoDesvio);
    const double paso = std::abs(tercero - valorEn(p, signo * (ultimoDesvio - 1)));
    return signo * ultimoDesvio + (valor - tercero) / paso;
}

double percentilDe(double z)
{
    return 50 * std::erfc(-z / std::numbers::sqrt2);
}

} // namespace paediatrics
