#pragma once

#include "core/maintenance/copiaPrevia.h"
#include "platform/forms/form.h"

/// "Protección de la base de datos": puts the practice's file under a new password and ends the program.
class panProtBase : public forms::Form
{
    Q_OBJECT
public:
    panProtBase();

private:
    void establecer();
    bool clavesBienEscritas();
    bool claveAnteriorBien();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Ingrese la clave de acceso &anterior :")};
    forms::TextBox Text1{QStringLiteral("Text1"), 10};
    forms::Label Label2{QStringLiteral("Label2"), QStringLiteral("Ingrese la clave de acceso &nueva :")};
    forms::TextBox Text2{QStringLiteral("Text2"), 10};
    forms::Label Label3{QStringLiteral("Label3"), QStringLiteral("&Repita la clave de acceso nueva :")};
    forms::TextBox Text3{QStringLiteral("Text3"), 10};
    forms::Label Label4{QStringLiteral("Label4"), QStringLiteral("(Máximo 10 caracteres)")};
    forms::Label Label5{QStringLiteral("Label5")};
    CopiaPrevia Check1{QStringLiteral("Check1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("A&ceptar"),
                                  QStringLiteral("candado")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Cance&lar"),
                                  QStringLiteral("cancelar")};
};
