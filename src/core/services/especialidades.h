#pragma once

#include <QStringList>

namespace MODULE11
{

/// The specialities that have records of their own. Their texts are stored and compared.
inline const QStringList especialidades = {
    QStringLiteral("Pediatría"),   QStringLiteral("Alergia"),      QStringLiteral("Oftalmología"),
    QStringLiteral("Cardiología"), QStringLiteral("Obstetricia"),  QStringLiteral("Odontología"),
    QStringLiteral("Ginecología"), QStringLiteral("Neonatología"),
};

} // namespace MODULE11
