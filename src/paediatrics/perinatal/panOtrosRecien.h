#pragma once

#include "paediatrics/perinatal/complemento.h"

/// "Otros datos del recien Nacido": the special manoeuvres, the prophylaxis and the hygiene.
class panOtrosRecien : public perinatal::Complemento
{
    Q_OBJECT
public:
    panOtrosRecien();
};
