#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "specialties/cardiology/graficoDePesos.h"

/// "Registro y evolución del peso" of the patient whose number is the tag, between two days. It begins with
/// all the weights there are.
class panGraMed : public forms::Form
{
    Q_OBJECT
public:
    panGraMed();

protected:
    void activate() override;

private:
    void graficar();
    void dibujar();
    void lista();
    void imprimir();

    qint64 paciente_ = 0;
    GraficoDePesos gr1{QStringLiteral("gr1")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Graficar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Pesos..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
};
