#pragma once

#include <QStringList>

namespace forms
{
class Canvas;
}

namespace familia
{

/// Prints the drawn tree on upright paper, under a title and with the lines below it, over as many pages as
/// they take. Throws basic::Error when the printer refuses.
void imprimir(forms::Canvas &arbol, const QString &titulo, const QStringList &lineas);

} // namespace familia
