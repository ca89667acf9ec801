#include "paediatrics/anthropometry/imcNormal.h"

#include <QFile>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

constexpr qint64 diasDeAdulto = 6939; ///< nineteen years
constexpr std::pair deAdulto{18.5, 25.0};

struct Cifra {
    double dias, p3, p97;
};

/// The published figures, age by age: those of the first five years and those to nineteen.
std::vector<Cifra> cifras(const QString &sexo)
{
    std::vector<Cifra> todas;
    for (const char *tabla : {"oms_imc_0_5", "oms2007_imc_5_19"}) {
        QFile archivo(u":/crecimiento/%1_%2.csv"_s.arg(QLatin1StringView(tabla), sexo));
        if (!archivo.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        const QByteArrayList titulos = archivo.readLine().trimmed().split(',');
        const auto p3 = titulos.indexOf("P3"), p97 = titulos.indexOf("P97");
        while (!archivo.atEnd()) {
            const QByteArrayList campos = archivo.readLine().trimmed().split(',');
            if (campos.size() == titulos.size())
                todas.push_back({campos[0].toDouble(), campos[p3].toDouble(), campos[p97].toDouble()});
        }
    }
    return todas;
}

double entre(double parte, double antes, double despues)
{
    return antes + parte * (despues - antes);
}

} // namespace

std::optional<std::pair<double, double>> imcNormal(const QString &sexo, qint64 diasDeVida)
{
    if (diasDeVida >= diasDeAdulto)
        return deAdulto;
    static const std::vector<Cifra> mujeres = cifras(u"mujeres"_s), varones = cifras(u"varones"_s);
    const std::vector<Cifra> &tabla = sexo == u"Mujer" ? mujeres : varones;
    if ((sexo != u"Mujer" && sexo != u"Varon") || tabla.empty() || diasDeVida < 0)
        return std::nullopt;
    const auto dias = static_cast<double>(diasDeVida);
    const auto despues = std::ranges::lower_bound(tabla, dias, {}, &Cifra::dias);
    if (despues == tabla.end())
        return std::pair{tabla.back().p3, tabla.back().p97};
    if (despues == tabla.begin())
        return std::pair{despues->p3, despues->p97};
    const auto antes = despues - 1;
    const double parte = (dias - antes->dias) / (despues->dias - antes->dias);
    return std::pair{entre(parte, antes->p3, despues->p3), entre(parte, antes->p97, despues->p97)};
}

} // namespace paediatrics
