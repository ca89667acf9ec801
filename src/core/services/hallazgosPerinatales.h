#pragma once

#include <QStringList>

namespace services
{

/// What a patient's birth record has to say of pregnancy, delivery and birth, a plain sentence a line. A
/// record that was only opened says nothing. Throws dao::Error.
QStringList hallazgosPerinatales(qint64 paciente);

} // namespace services
