#pragma once

#include "core/records/tabla.h"

/// The measures of the patient in the tag, and the way to the growth charts.
class panCrecimiento : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panCrecimiento();

private:
    void verCurvas();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Mediciones registradas :")};
};
