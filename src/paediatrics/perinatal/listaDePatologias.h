#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

namespace perinatal
{

/// A list of diseases of the birth record, added to from the practice's classifier.
class ListaDePatologias
{
public:
    /// `titulo` is that of the practice's own list of diagnoses while it is chosen from.
    ListaDePatologias(const QString &lista, const QString &agregar, const QString &quitar,
                      const QString &titulo);

    forms::Item contenido();
    void mostrar(const QStringList &lineas);
    QStringList lineas() const { return lista_.lines(); }

private:
    void agregar();

    QString titulo_;
    forms::ListBox lista_;
    forms::CommandButton agregar_, quitar_;
};

} // namespace perinatal
