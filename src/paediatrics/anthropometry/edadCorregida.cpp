#include "paediatrics/anthropometry/edadCorregida.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

constexpr double semanasDeTermino = 37, semanasCompletas = 40, semanasDeVida = 22;
constexpr double diasDeCorreccion = 730;

} // namespace

int diasDePrematuro(qint64 paciente)
{
    dao::Recordset perinatal = MODULE11::BaseDatos.openRecordset(
        u"Select [Edad gestacional por examen fisico], [Edad Gestacional madre] from Perinatal where IdPaciente = %1"_s
            .arg(paciente),
        dao::Recordset::Kind::Snapshot);
    if (perinatal.eof())
        return 0;
    for (int i : {0, 1}) {
        const double semanas = basic::toNumber(perinatal.value(i).text()).value_or(0);
        if (semanas >= semanasDeVida)
            return semanas < semanasDeTermino
                       ? static_cast<int>(std::lround((semanasCompletas - semanas) * 7))
                       : 0;
    }
    return 0;
}

double edadCorregida(double diasDeVida, int diasDePrematuro)
{
    return diasDeVida < diasDeCorreccion ? diasDeVida - diasDePrematuro : diasDeVida;
}

} // namespace paediatrics
