#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Acerca de": what this program is, its version and its licence.
class acerca : public forms::Form
{
    Q_OBJECT
public:
    acerca();

private:
    forms::Label Image1{QStringLiteral("Image1")};
    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Sanirell!")};
    forms::Label Label2{QStringLiteral("Label2")};
    forms::Label Label3{QStringLiteral("Label3"),
                        QStringLiteral("Gestión de consultorio médico.\n"
                                       "Programa libre bajo la licencia GPL, versión 3 o posterior.")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
