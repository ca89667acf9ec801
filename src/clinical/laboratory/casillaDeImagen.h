#pragma once

#include "clinical/laboratory/complementos.h"
#include "platform/forms/controls.h"

#include <QFrame>

/// A picture in miniature, or its place.
class Miniatura : public forms::ToolButton
{
    Q_OBJECT
public:
    explicit Miniatura(const QString &nombre);

    void mostrar(const QString &archivo);
    bool existe() const { return existe_; }

protected:
    /// Read when it comes into sight: a patient may have many.
    void paintEvent(QPaintEvent *event) override;

private:
    void leer();
    QString archivo_;
    bool existe_ = false, leida_ = false;
};

/// A place for a picture in the row of a report: the picture, its date, and what one does with it. The
/// controls' names have the place's number.
class CasillaDeImagen : public QFrame
{
    Q_OBJECT
public:
    CasillaDeImagen();

    void numerar(int numero);
    void mostrar(const complementos::Imagen &imagen);
    void ponerFecha(const basic::Value &fecha);
    const QString &archivo() const { return archivo_; }
    bool existe() const { return Image1_.existe(); }
    /// What was typed as its date; see complementos::fechaEscrita().
    QString fechaEscrita() const { return mFecha_.text(); }
    void irALaFecha();

signals:
    void elegir();
    void quitar();
    void cambiada();

private:
    void ver();

    QString archivo_;
    Miniatura Image1_;
    forms::TextBox mFecha_;
    forms::ToolButton ver_, quitar_;
};
