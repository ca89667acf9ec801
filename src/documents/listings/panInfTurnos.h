#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Informe de Turnos": which appointments to print. With the tag "CONS" it is "Informe de consultorio" and
/// selects visits, also by their service and the state of the insurer's order.
class panInfTurnos : public forms::Form
{
    Q_OBJECT
public:
    panInfTurnos();

protected:
    void load() override;

private:
    bool deConsultorio() const;
    void llenarPacientes();
    void imprimir();

    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {QStringLiteral("<Todas>")}};       ///< coverage
    forms::ComboBox Combo2{QStringLiteral("Combo2"), {QStringLiteral("<Todos>")}};       ///< professional
    forms::ComboBox Combo3{QStringLiteral("Combo3"), {QStringLiteral("<Todos>")}, true}; ///< patient
    forms::Frame picCons{QStringLiteral("picCons"), QStringLiteral("Facturación")};
    forms::ComboBox cbPrestaciones{QStringLiteral("cbPrestaciones"), {QStringLiteral("<Todas>")}};
    forms::ComboBox cbStatus{QStringLiteral("cbStatus"), {QStringLiteral("<TODOS>")}};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
