#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

/// The options of this workstation: settings that are written the moment they are clicked.
class Opciones
{
public:
    Opciones();

    forms::Item contenido();
    void mostrar(); ///< as they are now

private:
    forms::Item grupo(int indice, const QString &titulo);

    forms::CheckBox Check2{QStringLiteral("Check2"),
                           QStringLiteral("&Mostrar pantalla de Bienvenida al comenzar.")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Mostrar el a&sistente al comenzar")};
    forms::CheckBox Check5{QStringLiteral("Check5"),
                           QStringLiteral("Mostrar el a&yudante de entorno en las ventanas principales.")};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
};
