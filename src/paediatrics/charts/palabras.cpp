#include "paediatrics/charts/palabras.h"

#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/anthropometry/referencia.h"

namespace charts
{

QString enPalabras(Measure medida, Sex sexo, const Toma &toma)
{
    using paediatrics::Medida;
    const QStringView quien = sexo == Sex::Boys ? u"Varon" : u"Mujer";
    switch (medida) {
    case Measure::Peso:
        return paediatrics::enPalabras(Medida::Peso, quien, toma.dias, toma.peso);
    case Measure::Talla:
        return paediatrics::enPalabras(Medida::Talla, quien, toma.dias, toma.talla);
    case Measure::Pc:
        return paediatrics::enPalabras(Medida::PerimetroCefalico, quien, toma.dias, toma.pc);
    case Measure::Imc:
        return paediatrics::enPalabras(Medida::Imc, quien, toma.dias,
                                       paediatrics::CalcularIMC(toma.peso, toma.talla));
    case Measure::PesoParaTalla:
        return paediatrics::pesoParaTallaEnPalabras(quien, toma.dias, toma.talla, toma.peso);
    }
    Q_UNREACHABLE();
}

} // namespace charts
