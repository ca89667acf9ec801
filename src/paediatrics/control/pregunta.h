#pragma once

#include "paediatrics/control/controlSano.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

#include <QButtonGroup>

namespace sano
{

/// A yes/no question with a third answer: that it was not asked.
class Pregunta
{
public:
    struct Palabras {
        QString si, no, sinRespuesta;
    };

    /// The three buttons are the next of the array.
    Pregunta(forms::ControlArray<forms::OptionButton> &botones, const Palabras &palabras);

    forms::Item contenido();
    void mostrar(const Respuesta &respuesta);
    Respuesta respuesta() const;
    QString enPalabras() const { return grupo_.checkedButton()->text(); }

private:
    QButtonGroup grupo_;
};

/// The two tests of the metabolic screening with their values: `Option1(n)` and `Valor(n)`.
class PanelDeScreening
{
public:
    PanelDeScreening();

    forms::Item contenido();
    void mostrar(const Screening &pruebas);
    Screening pruebas() const;
    QStringList enPalabras() const;

private:
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::ControlArray<forms::TextBox> Valor{QStringLiteral("Valor")};
    std::array<Pregunta, pruebasDeScreening.size()> preguntas_;
};

} // namespace sano
