#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <optional>

/// "Informes": the visits of a period, those with a diagnosis, and the register of patients; each as a report
/// on paper and as a list. A doctor sees the own patients only.
class panInformes : public forms::Form
{
    Q_OBJECT
public:
    panInformes();

protected:
    void load() override;

private:
    void disponer();
    void conectar();
    void elegirDiagnostico();
    std::optional<QString> diagnosticoEscrito();
    bool hayProfesional();

    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {}, true};                    ///< diagnosis
    forms::ComboBox Combo2{QStringLiteral("Combo2"), {QStringLiteral("<Todos>")}}; ///< professional
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Informe de consultas"),
                                  QStringLiteral("informes")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Informe por p&atología"),
                                  QStringLiteral("informes")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("I&nforme de pacientes"),
                                  QStringLiteral("informes")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Listado de consultas"),
                                  QStringLiteral("ver")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("Listado po&r diagnóstico"),
                                  QStringLiteral("ver")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("Lis&tado de pacientes"),
                                  QStringLiteral("ver")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Elegir..."),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
