#pragma once

#include "platform/basic/value.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Disponibilidad de turnos del dia": one professional's places of a day, to pick a free one. Answers "SI"
/// or "NO".
class panDispTurnos : public forms::Form
{
    Q_OBJECT
public:
    panDispTurnos(basic::Date fecha, qint64 idProfesional);

    QString hora(); ///< of the place picked

protected:
    void load() override;

private:
    void aceptar();

    basic::Date fecha_;
    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label lblProf{QStringLiteral("lblProf")}; // the professional's key, for the query alone
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
