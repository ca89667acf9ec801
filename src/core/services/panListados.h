#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// Any query as a list, with a formula over one of its columns.
class panListados : public forms::Form
{
    Q_OBJECT
public:
    /// Throws dao::Error when the query does not run.
    panListados(const QString &sql, const QString &titulo);

private:
    void calcular();

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< formula
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< column
    forms::Label Label1{QStringLiteral("Label1")};    ///< result
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Ca&lcular")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
