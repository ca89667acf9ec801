#pragma once

#include "clinical/summary/edad.h"

#include <QString>

#include <functional>
#include <optional>

/// The state of each area that the practice follows in a patient: what was found, in a sentence, or nothing
/// when all is well. The first finding is told. They throw dao::Error.
namespace clinical
{

using Estado = std::optional<QString>;

/// Of whom the state is asked.
struct Persona {
    qint64 numero = 0;
    QString sexo; ///< "Varon", "Mujer"
    Edad edad;
};

Estado estadoDePresion(const Persona &persona); ///< the last taking against the percentiles of the age
Estado estadoDeAlimentacion(const Persona &persona);
Estado estadoDeMaduracion(const Persona &persona);
Estado estadoDeAlergias(const Persona &persona);
Estado estadoVisual(const Persona &persona);
Estado estadoEscolar(const Persona &persona);
Estado estadoDeAdolescencia(const Persona &persona);

/// What is normal of the body-mass index at that age.
struct Normal {
    double desde, hasta;
};
/// Cardiological history, and the body-mass index of the last measures against what is normal.
Estado estadoCardiologicoYPeso(const Persona &persona, const std::optional<Normal> &imc);

/// The athlete's examination begins from a heart record.
bool tieneEvolucionCardiologica(qint64 paciente);

} // namespace clinical
