#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Bienvenido!": four ways to begin. Answers "ABRIR", "NUEVO", "TURNOS", "AYUDAS" or "NO".
class panInicial : public forms::Form
{
    Q_OBJECT
public:
    panInicial();

    bool mostrarCadaVez() const { return Check1.isChecked(); }

protected:
    void load() override;

private:
    void subrayar(int indice);

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Bienvenido!")};
    forms::ControlArray<forms::Label> Label3{QStringLiteral("Label3")};
    forms::Label Label4{QStringLiteral("Label4"), QStringLiteral("(no tiene asignado ningún turno)")};
    forms::CheckBox Check1{QStringLiteral("Check1"),
                           QStringLiteral("Mostrar esta ventana cada vez que se inicia el programa")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Salir"),
                                  QStringLiteral("salir")};
};
