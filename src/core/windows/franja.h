#pragma once

#include "platform/forms/controls.h"

#include <QFrame>

/// A quiet notice across the main window, with one thing to do about it, until the person closes it.
class Franja : public QFrame
{
    Q_OBJECT
public:
    Franja();

    void avisar(const QString &texto, const QString &orden, std::function<void()> obra);
    /// The same without anything to do.
    void avisar(const QString &texto);

private:
    forms::Label lblAviso{QStringLiteral("lblAviso")};
    forms::CommandButton cmdAviso{QStringLiteral("cmdAviso"), {}};
    forms::CommandButton cmdCerrarAviso{QStringLiteral("cmdCerrarAviso"), QStringLiteral("Cerrar")};
    std::function<void()> obra_;
};
