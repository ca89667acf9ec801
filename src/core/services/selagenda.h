#pragma once

#include "core/services/panSelFecha.h"

/// The calendar of `PideFecha`, starting at a given date.
class selagenda : public panSelFecha
{
    Q_OBJECT
public:
    explicit selagenda(basic::Date inicio) : panSelFecha(QStringLiteral("selagenda")) { setValue(inicio); }
};
