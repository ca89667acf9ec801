#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/billing/facturacion.h"

/// "Facturar lote seleccionado": the number and day of a bill, and what happens with it. Answers "SI" or
/// "NO".
class panFacLote : public forms::Form
{
    Q_OBJECT
public:
    explicit panFacLote(const QString &numeroPropuesto);

    facturacion::Emision emision() const;
    bool emiteImpresion() const { return Check3.isChecked(); }

private:
    forms::TextBox txtFactura{QStringLiteral("txtFactura"), 15};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Factura &cobrada?")};
    forms::CheckBox Check2{QStringLiteral("Check2"), QStringLiteral("Asienta en caja &personal ?")};
    forms::CheckBox Check3{QStringLiteral("Check3"), QStringLiteral("Emite &impresión ?")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Ca&ncelar"),
                                  QStringLiteral("cancelar")};
};
