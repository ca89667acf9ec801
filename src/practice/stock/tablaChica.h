#pragma once

#include "platform/forms/controls.h"

#include <QWidget>

namespace stock
{

/// One of the small tables of the stock, a description a row: its list, and the buttons that add and take
/// off.
class TablaChica : public QWidget
{
    Q_OBJECT
public:
    struct Textos {
        QString tabla, clave, titulo, pedido, pregunta; ///< `titulo` and `pedido` ask for a new one
    };
    /// Its controls are `indice` of the arrays List1, Command11 (adds) and Command12 (takes off).
    TablaChica(int indice, Textos textos, const QString &agregar, const QString &quitar);

    void llenar();

signals:
    void cambiada();

private:
    void agregar();
    void quitar();

    const Textos textos_;
    forms::ListBox List1;
    forms::CommandButton Command11, Command12;
};

} // namespace stock
