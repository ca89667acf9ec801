#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Calculadora de Riesgo Gestacional": the boxes of the patient whose number is the tag, and where their
/// score stands.
class panCalRiesgoGesta : public forms::Form
{
    Q_OBJECT
public:
    panCalRiesgoGesta();

protected:
    void activate() override;

private:
    void dibujarBarra();
    void mostrarPuntaje();
    void guardar();

    QWidget barra_; ///< first, so that it ends after what stands on it
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::Label> Shape1{QStringLiteral("Shape1")};
    forms::Label Label1{QStringLiteral("Label1"),
                        QStringLiteral("Esta calculadora determina el riesgo  gestacional de la paciente.")};
    forms::Label Label4{QStringLiteral("Label4"), QStringLiteral("0")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("▲")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    bool leida_ = false;
};
