#include "figures/catalogo.h"

#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;

namespace figures
{

namespace
{

constexpr Origen todos[] = {
    {"Patologías", "Diagnostico", "DIAGPERSONALES"},
    {"Síntomas", "Sintoma", "Sintomas"},
    {"Tratamientos", "Tratamiento", "Tratamientos"},
};

/// Where a visit's diagnoses come from: with nothing set, from the practice's own list.
bool clasificacion()
{
    return settings::getSetting(u"Configuracion"_s, u"Clasificador patologico"_s) == u"CIE10";
}

} // namespace

const Origen &origen(Nombrado que)
{
    return todos[static_cast<int>(que)];
}

std::span<const Origen> origenes()
{
    return todos;
}

QString tablaDe(Nombrado que)
{
    return pideDerechoDeClasificacion(que) ? u"Diagnosticos"_s : QString::fromLatin1(origen(que).tabla);
}

bool pideDerechoDeClasificacion(Nombrado que)
{
    return que == Nombrado::Patologias && clasificacion();
}

} // namespace figures
