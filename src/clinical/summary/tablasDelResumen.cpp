#include "clinical/summary/tablasDelResumen.h"

#include "core/session/ports.h"

namespace resumen
{

namespace
{

clinical::Estado estadoDelPeso(const clinical::Persona &persona)
{
    std::optional<clinical::Normal> normal;
    if (const auto imc =
            ports::imcNormal ? ports::imcNormal(persona.sexo, persona.edad.diasDeVida) : std::nullopt)
        normal = clinical::Normal{imc->first, imc->second};
    return clinical::estadoCardiologicoYPeso(persona, normal);
}

constexpr Semaforo todos[] = {
    {"Picture2", "sscommand1", clinical::estadoDePresion},
    {"Picture4", "Label26", clinical::estadoDePresion},
    {"SSPanel3", "command15", clinical::estadoDeAlimentacion},
    {"SSPanel1", "command9", clinical::estadoDeMaduracion},
    {"sspanel7", "sscommand3", clinical::estadoDeAlergias},
    {"sspanel8", "SsCommand4", clinical::estadoVisual},
    {"SSPanel2", "command13", clinical::estadoEscolar},
    {"Picture5", "command21", clinical::estadoDeAdolescencia},
    {"Picture3", "Label87", estadoDelPeso},
};

} // namespace

std::span<const Semaforo> semaforos()
{
    return todos;
}

} // namespace resumen
