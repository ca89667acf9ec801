#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

#include <vector>

/// "Detalle de una facturacion": the lines of a bill.
class panMuesDetFactura : public forms::Form
{
    Q_OBJECT
public:
    explicit panMuesDetFactura(qint64 idFacturacion);

    static std::vector<forms::GridColumn> columnas();

protected:
    void load() override;

private:
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
};
