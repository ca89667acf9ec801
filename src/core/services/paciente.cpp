#include "core/services/paciente.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace services
{

std::optional<qint64> numeroDePaciente(const QString &texto)
{
    constexpr double mayor = 2147483647; // of the column
    const auto numero = basic::toNumber(texto);
    if (!numero || *numero == 0 || std::fabs(*numero) > mayor || std::floor(*numero) != *numero)
        return std::nullopt;
    return static_cast<qint64>(*numero);
}

std::optional<dao::Recordset> paciente(qint64 numero)
{
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    pacientes.setIndex(u"PrimaryKey");
    pacientes.seek(u"=", numero);
    if (pacientes.noMatch())
        return std::nullopt;
    return pacientes;
}

std::optional<dao::Recordset> paciente(const QString &numero)
{
    const auto leido = numeroDePaciente(numero);
    return leido ? paciente(*leido) : std::nullopt;
}

QString nombreDePaciente(const QString &numero)
{
    auto hallado = paciente(numero);
    return hallado ? (*hallado)[u"Apellido y Nombres"].text() : QString();
}

} // namespace services
