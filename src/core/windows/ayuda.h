#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QTextBrowser>

/// The help behind F1: the pages of the folder "ayuda", opened at the one of the window in use.
class ayuda : public forms::Form
{
    Q_OBJECT
public:
    ayuda();

    /// Shows the page of this window, or the index when it has none.
    void mostrarPagina(const QString &ventana);

private:
    QTextBrowser navegador_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Anterior"),
                                  QStringLiteral("anterior")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Índice"),
                                  QStringLiteral("inicio")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};

/// From here on F1 opens the help in any window of the program.
void instalarAyuda();
