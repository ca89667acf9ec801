#pragma once

#include "core/records/tabla.h"

class panExaGineco;

/// "Exámenes ginecológicos": the dated examinations of the patient whose number is the tag, with their texts
/// and drawings.
class panGinecoExamen : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panGinecoExamen();

protected:
    void deleteRow() override;

private:
    void nuevo();
    void abrir();
    void imprimir();
};
