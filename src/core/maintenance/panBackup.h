#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Seleccione destino del backup": copies the practice's file to a folder and ends the program. When the
/// copy cannot be made the window stays, and the base is closed.
class panBackup : public forms::Form
{
    Q_OBJECT
public:
    panBackup();

protected:
    void load() override;

private:
    void elegirCarpeta();
    void copiar();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("&Carpeta :")};
    forms::TextBox Text1{QStringLiteral("Text1"), 255};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
