#pragma once

#include "figures/turnosPorMes.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Estadísticas": the appointments of some months, counted.
class panEstadTurnos : public forms::Form
{
    Q_OBJECT
public:
    panEstadTurnos();

protected:
    void load() override;

private:
    figures::FiltroDeTurnos filtro() const;
    void ver();

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::DTPicker DTPicker1{QStringLiteral("DTPicker1")};
    forms::DTPicker DTPicker2{QStringLiteral("DTPicker2")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::ComboBox Combo3{QStringLiteral("Combo3")};
    forms::ComboBox Combo4{QStringLiteral("Combo4")};
    forms::TextBox txtCant{QStringLiteral("txtCant")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Ver"), QStringLiteral("ver")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
