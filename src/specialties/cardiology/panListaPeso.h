#pragma once

#include "core/records/tabla.h"

/// "Evolución del peso": the measures of the patient whose number is the tag, to add a weighing or to take
/// one away.
class panListaPeso : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panListaPeso();

private:
    void nuevo();
};
