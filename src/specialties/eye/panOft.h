#pragma once

#include "core/records/tabla.h"

/// "Oftalmología": the eye visits of the patient whose number is the tag.
class panOft : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panOft();

private:
    void agregar();
    void editar();
    void imprimir();
    void anteojos();
    void evolucion();
    void rowShown() override;

    qint64 visita_ = 0; ///< the current one; another station may have taken it away
};
