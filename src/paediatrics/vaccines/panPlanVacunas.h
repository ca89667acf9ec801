#pragma once

#include "paediatrics/vaccines/hojaDeVacunas.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QMenu>

#include <functional>

/// "Plan de vacunación": the sheet of the patient whose number is the window's tag. A click on a marker
/// chooses its dose (the tag of `Frame1`) and opens the menu that notes it.
class panPlanVacunas : public forms::Form
{
    Q_OBJECT
public:
    panPlanVacunas();

protected:
    void activate() override;

private:
    void disponer();
    void agregarMenu();
    void agregarAlMenu(const QString &nombre, const QString &titulo, const std::function<void()> &trabajo);

    void llenar();
    void mostrarPaciente();
    void abrirMenu(const QString &item);
    /// What is done to the chosen dose; then the sheet is built again.
    void conLaElegida(const std::function<void(const vacunas::DosisDelPlan &)> &trabajo);
    void marcarColocada(const vacunas::DosisDelPlan &dosis);
    void marcarIndicada(const vacunas::DosisDelPlan &dosis);
    void marcarSinColocar(const vacunas::DosisDelPlan &dosis);
    void verRegistro(const vacunas::DosisDelPlan &dosis);
    void marcarTodas();
    void imprimir();

    std::optional<qint64> paciente_;
    std::optional<basic::Date> nacimiento_;
    std::optional<vacunas::EdadDelPlan> edad_;
    vacunas::Planilla planilla_;
    bool trabajando_ = false; ///< the sheet is built once, when the work is done
    QMenu Menu1;

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::Label lblSinLugar{QStringLiteral("lblSinLugar")};
    forms::Frame Frame1{QStringLiteral("Frame1"), {}};
    vacunas::HojaDeVacunas hoja;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprimir plan..."),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Marcar &todas colocadas"),
                                  QStringLiteral("vacunas")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Administrar el plan..."),
                                  QStringLiteral("editar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Niños atrasados..."),
                                  QStringLiteral("ver")};
};
