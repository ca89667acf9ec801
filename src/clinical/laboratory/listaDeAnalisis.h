#pragma once

#include "platform/forms/controls.h"

/// The check list of the laboratory's tests.
class ListaDeAnalisis : public forms::ListBox
{
    Q_OBJECT
public:
    explicit ListaDeAnalisis(const QString &nombre);

    /// All tests in sight at once.
    void ponerEnColumnas();
    void llenar();
    /// These too; what is no test any more is left out.
    void tildar(const QStringList &estudios);
    QStringList tildados() const;
};
