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
    QStringList tildados() const;
};
