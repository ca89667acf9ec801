#include "paediatrics/perinatal/campos.h"

#include "core/services/opcionesPerinatales.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

const QStringList gruposSanguineos = {u"A+"_s,  u"A-"_s,  u"B+"_s, u"B-"_s,
                                      u"AB+"_s, u"AB-"_s, u"0+"_s, u"0-"_s};

namespace
{

/// What a measure is written in, as long as nothing is.
const records::Campos::Unidades unidades = {
    {u"Talla de la Madre al Nacer"_s, u"cm"_s},
    {u"Peso anterior de la Madre"_s, u"kg"_s},
    {u"Peso al nacer de la Madre"_s, u"kg"_s},
    {u"Edad Gestacional madre"_s, u"semanas, o semanas+días"_s},
    {u"Edad gestacional por examen fisico"_s, u"semanas"_s},
    {u"Peso al Nacer"_s, u"gramos"_s},
    {u"Talla al Nacer"_s, u"cm"_s},
    {u"Perimetro cefalico al nacer"_s, u"cm"_s},
};

} // namespace

Campos::Campos(const QString &tabla) : records::Campos(tabla, unidades)
{
}

Item Campos::opciones(const QString &columna, int porRenglon)
{
    return records::Campos::opciones(columna, services::opcionesPerinatales(columna), porRenglon);
}

} // namespace perinatal
