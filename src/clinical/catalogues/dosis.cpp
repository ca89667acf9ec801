#include "clinical/catalogues/dosis.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

/// In grams, 0 where it was not taken; nothing for a patient who was never measured.
std::optional<double> ultimoPeso(qint64 paciente)
{
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(
        u"select * from medidas where paciente = %1 order by fecha"_s.arg(paciente));
    if (medidas.eof())
        return {};
    medidas.moveLast();
    return medidas[u"Peso"].number();
}

} // namespace

QString catalogos::dosisParaElPaciente(const QString &paciente, const basic::Value &dosis,
                                       const basic::Value &intervalo)
{
    const QString sinDatos = u"Sin datos de la dosis para el paciente"_s;
    const auto numero = services::numeroDePaciente(paciente);
    if (!numero || !dosis.isNumeric())
        return sinDatos;
    const std::optional<double> divisor = intervalo.isNull() ? 1.0 : basic::toNumber(intervalo.text());
    if (!divisor || *divisor == 0.0)
        return sinDatos;
    const std::optional<double> peso = ultimoPeso(*numero);
    if (!peso)
        return sinDatos;
    const double valor = *basic::toNumber(dosis.text()) * *peso / 1000.0 / *divisor;
    if (!std::isfinite(valor))
        return sinDatos;
    return u"Dosis para %1 gramos : %2 x dosis."_s.arg(basic::format(*peso, u"###,##0"),
                                                       basic::format(valor, u"###,##0.00"));
}
