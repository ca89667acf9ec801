#pragma once

#include "core/records/tabla.h"
#include "platform/forms/controlarray.h"

/// "Administración de Niveles de Acceso": the levels and the rights of each. The boxes of level 3, the
/// supervisor of the delivered file, cannot be changed.
class panNiveles : public records::Tabla
{
    Q_OBJECT
public:
    panNiveles();

protected:
    void rowShown() override;
    bool mayDelete() override;

private:
    void agregarDerechos();
    forms::Item casillas(int ficha);
    void agregar();

    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
};
