#pragma once

#include "core/maintenance/copias.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

#include <QSpinBox>

/// "Seleccione destino del backup": copies the practice's file to a folder, and to a second one if there is,
/// and ends the program. When the copy cannot be made the window stays, and the base is closed.
class panBackup : public forms::Form
{
    Q_OBJECT
public:
    panBackup();

protected:
    void load() override;

private:
    forms::Item opciones();
    void elegirCarpeta(forms::TextBox &campo);
    respaldo::Destino escrito() const;
    void copiar();
    bool hacer(const respaldo::Destino &destino);

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Ca&rpeta :")};
    forms::TextBox Text1{QStringLiteral("Text1"), 255};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("abrir")};
    forms::TextBox Text2{QStringLiteral("Text2"), 255};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("B&uscar..."),
                                  QStringLiteral("abrir")};
    forms::Label lblFalla{QStringLiteral("lblFalla")}; ///< why there is no copy
    QSpinBox Conservar;
    QSpinBox Dias;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
