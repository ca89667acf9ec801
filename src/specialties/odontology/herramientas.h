#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/layout.h"
#include "specialties/odontology/flotante.h"

#include <QToolButton>

namespace odonto
{

/// A tool with a picture of its own, with its caption beside it or in its tip.
class Herramienta : public QToolButton
{
    Q_OBJECT
public:
    Herramienta(const QString &nombre, const QString &rotulo, const QIcon &icono, bool conTexto);
};

/// The tools of the tooth that is chosen: its faces, its marks, its legend.
class Herramientas : public Flotante
{
    Q_OBJECT
public:
    /// By the index of the tool.
    enum Panel { PiezaEntera = 0, ColorActual = 5 };
    Herramientas();
    /// Lowers the tool of that kind of mark and raises the others.
    void bajar(int tipo);
    void mostrarColor(int color);
    /// The face that a tool paints; nothing for one that does something else.
    static std::optional<int> caraDe(int panel);

signals:
    void elegida(int panel);
    void leyendaPedida();
    void limpiezaPedida();

private:
    forms::ControlArray<Herramienta> SSPanel2{QStringLiteral("SSPanel2")};
    Herramienta cmLeyenda, cmLimpiar;
};

/// A colour of the palette.
class Muestra : public QAbstractButton
{
    Q_OBJECT
public:
    Muestra(const QString &nombre, const QString &colorEnPalabras, int color);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The palette. The colours have no fixed meaning.
class Colores : public Flotante
{
    Q_OBJECT
public:
    Colores();

signals:
    void elegido(int color);

private:
    forms::ControlArray<Muestra> xCol{QStringLiteral("xCol")};
};

} // namespace odonto
