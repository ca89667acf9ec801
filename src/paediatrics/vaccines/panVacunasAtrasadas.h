#pragma once

#include "paediatrics/vaccines/atrasos.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QTableView>

/// "Niños atrasados en sus vacunas": whom to call, by vaccine and age; as a file and as letters.
class panVacunasAtrasadas : public forms::Form
{
    Q_OBJECT
public:
    panVacunasAtrasadas();
    ~panVacunasAtrasadas() override;

protected:
    void load() override;

private:
    class Lista;
    void disponer();
    void buscar();
    std::optional<vacunas::Busqueda> busqueda();
    void mostrar(vacunas::Atrasos atrasos);
    void abrirPlan();
    void exportar();
    void escribirCartas();

    std::unique_ptr<Lista> lista_;
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {QStringLiteral("<Todas>")}};
    forms::TextBox mDesde{QStringLiteral("mDesde"), 2};
    forms::TextBox mHasta{QStringLiteral("mHasta"), 2};
    forms::TextBox mDias{QStringLiteral("mDias"), 4};
    forms::Label Label1{QStringLiteral("Label1")}; ///< how many
    QTableView Grid1;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Buscar"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Plan del paciente..."),
                                  QStringLiteral("vacunas")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Guardar C&SV..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Ca&rtas..."),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
