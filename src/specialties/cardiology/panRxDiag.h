#pragma once

#include "platform/forms/form.h"
#include "specialties/cardiology/dibujoDeTorax.h"

/// "Diagrama Gráfico Rx": what is drawn on the picture of a chest X-ray, kept in the file of the
/// program's folder that is the tag.
class panRxDiag : public forms::Form
{
    Q_OBJECT
public:
    panRxDiag();

protected:
    void activate() override;
    bool queryUnload() override;

private:
    void guardar();
    void imprimir();

    bool leido_ = false;
    DibujoDeTorax dibujo_{DibujoDeTorax::Fondo::Radiografia};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Guardar Cambios"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir..."),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
