#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// The measures of the patient in the tag, and the way to the growth charts.
class panCrecimiento : public forms::Form
{
    Q_OBJECT
public:
    panCrecimiento();

protected:
    void activate() override;

private:
    void command2Click();
    void command8Click();
    void command10Click();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Mediciones registradas :")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Tomar medidas"),
                                  QStringLiteral("medidas")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Borrar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command10{QStringLiteral("Command10"), QStringLiteral("C&urvas de crecimiento"),
                                   QStringLiteral("curvas")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
