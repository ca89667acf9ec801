#include "clinical/family/impresion.h"

#include "core/reports/papel.h"

void familia::imprimir(forms::Canvas &arbol, const QString &titulo, const QStringList &lineas)
{
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    papel.dibujar(arbol);
    for (const QString &linea : lineas)
        papel.escribir(linea, 10);
    papel.terminar();
}
