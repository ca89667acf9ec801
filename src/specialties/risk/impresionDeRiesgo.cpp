#include "specialties/risk/impresionDeRiesgo.h"

#include "core/reports/papel.h"
#include "core/services/paciente.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

namespace riesgo
{

void imprimir(const forms::Form &ventana, const QStringList &respuestas, const QString &total,
              const QString &consejo)
{
    const auto impresora = printing::chooserDialog(ventana.windowTitle());
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    if (const QString nombre = services::nombreDePaciente(ventana.tag()); !nombre.isEmpty())
        papel.escribir(nombre, 11, true);
    papel.escribir(basic::format(basic::today(), u"dd/mm/yyyy"), 9);
    papel.escribir(respuestas.join(u'\n'), 10);
    papel.escribir(total, 12, true);
    if (!consejo.isEmpty())
        papel.escribir(consejo, 10);
    papel.terminar();
}

} // namespace riesgo
