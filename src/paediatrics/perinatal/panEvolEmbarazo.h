#pragma once

#include "paediatrics/perinatal/complemento.h"

/// "Evolución durante el embarazo": illnesses, treatments and vaccines of each trimester.
class panEvolEmbarazo : public perinatal::Complemento
{
    Q_OBJECT
public:
    panEvolEmbarazo();
};
