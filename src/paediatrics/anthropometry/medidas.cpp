#include "paediatrics/anthropometry/medidas.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "paediatrics/anthropometry/panMedidas.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

namespace paediatrics
{

double CalcularIMC(const basic::Value &peso, const basic::Value &talla)
{
    const double gramos = peso.number();
    const double centimetros = talla.number();
    if (gramos == 0 || centimetros == 0)
        return 0;
    const double metros = centimetros / 100;
    return (gramos / 1000) / (metros * metros);
}

bool TomarMedidas(qint64 paciente)
{
    panMedidas ventana;
    if (auto fila = services::paciente(paciente); fila && !(*fila)[u"Fecha de Nacimiento"].isNull())
        ventana.medirA((*fila)[u"Sexo"].text(), (*fila)[u"Fecha de Nacimiento"].date());
    ventana.showModal();
    if (ventana.tag() != u"SI")
        return false;
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(u"Medidas"_s);
    medidas.addNew();
    medidas[u"Paciente"] = paciente;
    medidas[u"fecha"] = ventana.fecha();
    medidas[u"Peso"] = ventana.peso();
    medidas[u"Talla"] = ventana.talla();
    medidas[u"Pc"] = ventana.pc();
    medidas.update();
    return true;
}

} // namespace paediatrics
