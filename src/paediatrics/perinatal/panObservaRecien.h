#pragma once

#include "paediatrics/perinatal/complemento.h"

/// "Observaciones del recien Nacido": a free text.
class panObservaRecien : public perinatal::Complemento
{
    Q_OBJECT
public:
    panObservaRecien();

private:
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};
};
