#pragma once

#include "clinical/catalogues/catalogoClasificado.h"

/// "Pantalla de Diagnósticos patológicos": the practice's own list of diagnoses. A classification in the
/// window's tag narrows the list from the start.
class panDiagnosticos : public catalogos::CatalogoClasificado
{
    Q_OBJECT
public:
    panDiagnosticos();

    /// Opened to keep the list and not to choose from it.
    void soloMantenimiento();

protected:
    void preparar() override;
    void listar(dao::Recordset &filas) override;
};
