#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "practice/tariffs/tarifas.h"

#include <optional>

/// "Aumento de aranceles": raises the tariffs by a percentage, which is seen price by price before it is
/// done. Answers "SI" when they were raised.
class panAumento : public forms::Form
{
    Q_OBJECT
public:
    panAumento();

protected:
    void load() override;

private:
    std::optional<tarifas::Aumento> pedido() const;
    void mostrar();
    void aceptar();

    forms::TextBox txtPorcentaje{QStringLiteral("txtPorcentaje"), 10};
    forms::ComboBox cbRedondeo{QStringLiteral("cbRedondeo")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::Data Data1{QStringLiteral("Data1"), dao::Recordset::Kind::Snapshot};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aumentar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
