#pragma once

#include "core/records/tabla.h"

/// "Configuración de campos para importar": where each column of the patients stands in a line of the roll,
/// and which one an affiliate is known by.
class panConfCamposImport : public records::Tabla
{
    Q_OBJECT
public:
    panConfCamposImport();

protected:
    void load() override;
    void rowShown() override;

private:
    void agregar();
    void asignarIndice();

    forms::ComboBox cbCampo{QStringLiteral("cbCampo"), {}, true};
    forms::TextBox txPosicion{QStringLiteral("txPosicion"), 6};
    forms::TextBox txTamano{QStringLiteral("txTamano"), 6};
};
