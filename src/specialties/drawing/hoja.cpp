#include "specialties/drawing/hoja.h"

#include "core/reports/papel.h"

using namespace Qt::StringLiterals;

namespace dibujo
{

void imprimir(Diagrama &diagrama, const QString &titulo, const QString &paciente, const QStringList &textos)
{
    const auto impresora = printing::chooserDialog(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    if (!paciente.isEmpty())
        papel.escribir(paciente, 11, true);
    papel.dibujar(diagrama);
    QStringList terminos;
    for (const forms::CanvasItem *marca : diagrama.all())
        terminos += marca->toolTip();
    terminos.removeDuplicates();
    for (const QString &texto : QStringList{terminos.join(u'\n'), textos.join(u'\n')})
        if (!texto.trimmed().isEmpty())
            papel.escribir(texto.trimmed(), 10);
    papel.terminar();
}

} // namespace dibujo
