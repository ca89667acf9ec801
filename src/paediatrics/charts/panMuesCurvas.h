#pragma once

#include "core/session/screens.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Curvas y Gráficas": chooses the chart for the patient in the tag, or for all patients.
class panMuesCurvas : public forms::Form
{
    Q_OBJECT
public:
    panMuesCurvas();

protected:
    void load() override;
    void activate() override;

private:
    void tomarSexoDelPaciente();
    void incluirATodos();
    void habilitarEdades();
    QString sexo() const { return forms::tag(&Command3); }
    screens::Window destino() const;
    QString sujeto() const;
    void mostrarCurva();

    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::ControlArray<forms::OptionButton> Option2{QStringLiteral("Option2")};
    forms::ControlArray<forms::Frame> Frame5{QStringLiteral("Frame5")};
    forms::CheckBox Check1{QStringLiteral("Check1"),
                           QStringLiteral("&Incluir medidas de todos los pacientes registrados.")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QString()}; ///< hidden; its tag is the sex
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Mostrar"),
                                  QStringLiteral("curvas")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Curvas &OMS"),
                                  QStringLiteral("curvas")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
