#pragma once

#include "paediatrics/control/renglonesDelPaciente.h"

/// "Escolaridad, Socialización y aprendizaje": how the patient gets on at school, a sign a row.
class panEscolar : public sano::RenglonesDelPaciente
{
    Q_OBJECT
public:
    panEscolar();

protected:
    void activate() override;

private:
    QString enPalabras(dao::Recordset &fila) const override;

    forms::ComboBox Combo2;
};
