#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace paediatrics
{

/// One published reference of growth for one sex: the L, M and S parameters by age in days (by length in
/// centimetres in the two references of weight for length). Between two published ages they are interpolated.
class TablaLms
{
public:
    struct Parametros {
        double l, m, s;
    };

    /// The delivered figures by the name of their file ("oms_peso_0_5"), for "Varon" or "Mujer"; null for a
    /// sex without figures.
    static const TablaLms *de(QStringView referencia, QStringView sexo);

    /// Nothing outside the published ages.
    std::optional<Parametros> en(double edad) const;

private:
    struct Fila {
        double edad;
        Parametros parametros;
    };
    explicit TablaLms(const QString &archivo);

    std::vector<Fila> filas_;
};

/// The value that stands z deviations from the median.
double valorEn(const TablaLms::Parametros &parametros, double z);
/// How many deviations from the median a value stands; 0 or less has none and gives minus infinity.
double puntajeZ(const TablaLms::Parametros &parametros, double valor);
/// The same with the straight line beyond three deviations which the World Health Organization prescribes for
/// what depends on weight.
double puntajeZConExtremosRectos(const TablaLms::Parametros &parametros, double valor);
/// Under how many of a hundred of the reference a score stands, 0 to 100.
double percentilDe(double z);

} // namespace paediatrics
