#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

/// "Administración de Niveles de Acceso": the levels and the rights of each. The boxes of level 3, the
/// supervisor of the delivered file, cannot be changed.
class panNiveles : public forms::Form
{
    Q_OBJECT
public:
    panNiveles();

protected:
    void load() override;
    bool queryUnload() override;

private:
    void agregarDerechos();
    forms::Item casillas(int ficha);
    void mostrarFila();
    void command1Click();
    void command2Click();

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Nuevo"),
                                  QStringLiteral("nuevo")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Eliminar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
