#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// Asks which professional uses the system at this workstation. Answers "SI" or "NO".
class panSelProf : public forms::Form
{
    Q_OBJECT
public:
    panSelProf();

    QString nombre(); ///< of the row selected; empty without rows

protected:
    void load() override;

private:
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "Deberá seleccionar de ésta lista, que profesional utilizará el sistema en éste equipo PC.")};
    forms::Label lblVacia{
        QStringLiteral("lblVacia"),
        QStringLiteral(
            "Todavía no hay profesionales en la lista. Presione Cancelar e ingrese; luego agréguelos en "
            "Archivos / Tablas varias / Tabla de Profesionales y vuelva a iniciar el programa.")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
