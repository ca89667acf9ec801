#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Estadísticas de Torvendo! Pediátrico": what can be found out of the practice's records.
class panEstadisticas : public forms::Form
{
    Q_OBJECT
public:
    panEstadisticas();

private:
    forms::Label Label1{QStringLiteral("Label1")};
    forms::CommandButton Command5{QStringLiteral("Command5"),
                                  QStringLiteral("Estadísticas de &Consutorio y turnos"),
                                  QStringLiteral("turnos")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Análisis detallado"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Curvas de C&recimiento"),
                                  QStringLiteral("curvas")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Prevalencias"),
                                  QStringLiteral("estadisticas")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Evolución anual"),
                                  QStringLiteral("calendario")};
};
