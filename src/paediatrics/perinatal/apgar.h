#pragma once

#include "paediatrics/perinatal/campos.h"

namespace perinatal
{

/// The sum of the scores that are numbers; the others count for nothing. There is no check of a score.
QString totalDeApgar(const QStringList &puntajes);

/// The Apgar score on the main form: five signs at one and at five minutes, and the totals, which follow the
/// signs as they are typed. A total that was stored by itself stays until then.
class Apgar
{
public:
    explicit Apgar(Campos &campos);

    forms::Item contenido();

private:
    /// One or two characters, all of them chosen as the box is come to: a digit takes the place of the old
    /// one.
    class Puntaje : public forms::TextBox
    {
    public:
        explicit Puntaje(const QString &nombre);

    protected:
        void focusInEvent(QFocusEvent *event) override;
    };
    void sumar(int columna);

    forms::ControlArray<Puntaje> Text4{QStringLiteral("Text4")};
    forms::ControlArray<forms::TextBox> Text40{QStringLiteral("Text40")};
};

} // namespace perinatal
