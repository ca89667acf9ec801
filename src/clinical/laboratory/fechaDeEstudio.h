#pragma once

#include "platform/forms/controls.h"

/// The date of a study: a day, or "-" for none. What is no date becomes today when the field is left.
class FechaDeEstudio : public forms::TextBox
{
    Q_OBJECT
public:
    explicit FechaDeEstudio(const QString &nombre);

    void setFecha(const basic::Value &fecha);
    /// The day that the text stands for, as if the field had been left; Null for none.
    basic::Value fecha();

private:
    void reparar();
};
