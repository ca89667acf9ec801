#include "paediatrics/anthropometry/referencia.h"

#include "paediatrics/anthropometry/tablaLms.h"

#include <QLocale>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

constexpr double ultimoDiaAcostado = 730, diasDeCincoAnios = 1826;
const QLocale castellano(QLocale::Spanish, QLocale::Argentina);

/// From which deviation on a measure has which name; the first of a column is that of everything below.
struct Nombres {
    const char16_t *muyBajo, *bajo, *adecuado, *alto, *muyAlto;
};

struct Reglas {
    std::array<const char16_t *, 2> tablas; ///< the first years' reference, and the one that goes on
    bool extremosRectos;                    ///< of what depends on weight
    Nombres nombres;
};

const Reglas &reglasDe(Medida medida)
{
    static constexpr Nombres delPeso{u"muy bajo", u"bajo", u"adecuado", u"alto", u"muy alto"};
    static constexpr Nombres deLaTalla{u"muy baja", u"baja", u"adecuada", u"alta", u"muy alta"};
    static constexpr Nombres delPc{u"muy pequeño", u"pequeño", u"adecuado", u"grande", u"muy grande"};
    static constexpr Reglas todas[] = {
        {{u"oms_peso_0_5", u"oms2007_peso_5_10"}, true, delPeso},
        {{u"oms_talla_0_5", u"oms2007_talla_5_19"}, false, deLaTalla},
        {{u"oms_pc_0_5", u"flandes_pc_0_18"}, false, delPc},
        {{u"oms_imc_0_5", u"oms2007_imc_5_19"}, true, delPeso},
    };
    return todas[static_cast<int>(medida)];
}

const char16_t *nombreDe(const Nombres &nombres, double z)
{
    if (z < -2)
        return z < -3 ? nombres.muyBajo : nombres.bajo;
    if (z > 2)
        return z > 3 ? nombres.muyAlto : nombres.alto;
    return nombres.adecuado;
}

} // namespace

std::optional<double> puntajeZ(Medida medida, QStringView sexo, double dias, double valor)
{
    if (valor <= 0)
        return std::nullopt;
    const Reglas &reglas = reglasDe(medida);
    for (const char16_t *referencia : reglas.tablas) {
        const TablaLms *tabla = TablaLms::de(referencia, sexo);
        if (!tabla)
            return std::nullopt;
        if (const auto parametros = tabla->en(dias))
            return reglas.extremosRectos ? puntajeZConExtremosRectos(*parametros, valor)
                                         : puntajeZ(*parametros, valor);
    }
    return std::nullopt;
}

QString percentilYPuntaje(double z)
{
    const double percentil = percentilDe(z);
    const double decimas = std::round(percentil * 10) / 10;
    const QString lugar = percentil < 0.1               ? u"P<0,1"_s
                          : percentil > 99.9            ? u"P>99,9"_s
                          : decimas < 1 || decimas > 99 ? u"P"_s + castellano.toString(decimas, 'f', 1)
                                                        : u"P"_s + QString::number(std::lround(percentil));
    const double redondeado = std::round(z * 10) / 10;
    const QString signo = redondeado > 0 ? u"+"_s : redondeado < 0 ? u"-"_s : QString();
    return u"%1, z %2%3"_s.arg(lugar, signo, castellano.toString(std::abs(redondeado), 'f', 1));
}

QString enPalabras(Medida medida, QStringView sexo, double dias, double valor)
{
    const auto z = puntajeZ(medida, sexo, dias, valor);
    if (!z)
        return {};
    return u"%1, %2 para la edad"_s.arg(percentilYPuntaje(*z),
                                        QStringView(nombreDe(reglasDe(medida).nombres, *z)));
}

QString pesoParaTallaEnPalabras(QStringView sexo, double dias, double talla, double peso)
{
    if (dias < 0 || dias > diasDeCincoAnios || peso <= 0)
        return {};
    const TablaLms *tabla =
        TablaLms::de(dias <= ultimoDiaAcostado ? u"oms_peso_longitud" : u"oms_peso_talla", sexo);
    const auto parametros = tabla ? tabla->en(talla) : std::nullopt;
    if (!parametros)
        return {};
    const double z = puntajeZConExtremosRectos(*parametros, peso);
    return u"%1, %2 para la talla"_s.arg(percentilYPuntaje(z),
                                         QStringView(nombreDe(reglasDe(Medida::Peso).nombres, z)));
}

} // namespace paediatrics
