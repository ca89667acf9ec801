#include "clinical/family/impresion.h"

#include "core/reports/papel.h"

void familia::imprimir(forms::Canvas &arbol, const QString &titulo, const QStringList &lineas)
{
    printing::Choice impresora;
    if (!printing::defaultChoice(impresora))
        return;
    informes::Papel papel(impresora, titulo);
    papel.escribir(titulo, 14, true);
    papel.dibujar(arbol);
    for (const QString &linea : lineas)
        papel.escribir(linea, 10);
    papel.terminar();
}
