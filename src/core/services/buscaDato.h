#pragma once

#include "core/services/dialogoBuscar.h"

/// "Buscar": a text to look for in one column. Answers "SI" or "NO".
class buscaDato : public services::DialogoBuscar
{
    Q_OBJECT
public:
    buscaDato();
};
