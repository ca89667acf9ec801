#pragma once

#include "platform/forms/controls.h"

#include <QWidget>

/// A history told as text, to be read: the list of its sections to jump to, a search (Ctrl+F in the window,
/// F3 for the next place) and its pages with the practice's head, to print or to keep as PDF.
class LectorDeHistoria : public QWidget
{
    Q_OBJECT
public:
    LectorDeHistoria();

    void mostrar(qint64 paciente, const QString &historia);

private:
    void irALaSeccion(int indice);
    void buscar();
    void verPaginas();

    forms::MemoBox RT1{QStringLiteral("RT1")};
    forms::ComboBox cbSeccion{QStringLiteral("cbSeccion")};
    forms::SearchBox txtBuscar{QStringLiteral("txtBuscar"), 60};
    forms::CommandButton cmdVista{QStringLiteral("cmdVista"), {}, QStringLiteral("imprimir")};
    qint64 paciente_ = 0;
};
