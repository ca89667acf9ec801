#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Estados de los turnos": the list of names that an appointment's state is chosen from.
class panEstadosTurnos : public forms::Form
{
    Q_OBJECT
public:
    panEstadosTurnos();

protected:
    void load() override;

private:
    void command1Click();
    void command2Click();

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Agregar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Eliminar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
