#include "paediatrics/anthropometry/edadCorregida.h"

#include "core/session/session.h"
#include "paediatrics/perinatal/alNacer.h"

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

constexpr int diasDeTermino = 37 * 7, diasCompletos = 40 * 7, diasDeVida = 22 * 7; ///< of gestation
constexpr double diasDeCorreccion = 730;

} // namespace

int diasDePrematuro(qint64 paciente)
{
    dao::Recordset ficha = MODULE11::BaseDatos.openRecordset(
        u"Select [Edad gestacional por examen fisico], [Edad Gestacional madre] from Perinatal where IdPaciente = %1"_s
            .arg(paciente),
        dao::Recordset::Kind::Snapshot);
    if (ficha.eof())
        return 0;
    for (int i : {0, 1}) {
        const int dias = perinatal::diasDeGestacion(ficha.value(i).text()).value_or(0);
        if (dias >= diasDeVida)
            return dias < diasDeTermino ? diasCompletos - dias : 0;
    }
    return 0;
}

double edadCorregida(double diasDeVida, int diasDePrematuro)
{
    return diasDeVida < diasDeCorreccion ? diasDeVida - diasDePrematuro : diasDeVida;
}

} // namespace paediatrics
