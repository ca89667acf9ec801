#pragma once

#include "core/records/tabla.h"
#include "paediatrics/sight/agudeza.h"
#include "paediatrics/sight/curvaDeAgudeza.h"

/// "Agudeza Visual": the tests of the patient whose number is the tag, and a picture of them by age: the
/// mean, or one eye near or far.
class panVisual : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panVisual();

protected:
    void activate() override;

private:
    void nueva();
    void borrar();
    void dibujar();
    void imprimir();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    agudeza::Curva Picture1{QStringLiteral("Picture1")};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
};
