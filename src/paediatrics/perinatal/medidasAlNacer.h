#pragma once

#include "paediatrics/perinatal/campos.h"

namespace perinatal
{

/// Beside the newborn's weight, height and head: where each stands among newborns of the sex and gestational
/// age, in words that follow what is typed. The age is that of the physical examination, and without one the
/// pregnancy's. Nothing is said of twins, whom the figures leave out.
class MedidasAlNacer
{
public:
    explicit MedidasAlNacer(Campos &campos);

    forms::Item contenido();
    void setSexo(const QString &sexo);

private:
    void decir();
    std::optional<int> diasDeGestacion(const Valores &valores) const;

    Campos &campos_;
    QString sexo_;
    forms::ControlArray<forms::Label> lugar_{QStringLiteral("lblLugar")};
};

} // namespace perinatal
