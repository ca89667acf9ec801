#pragma once

#include "paediatrics/pressure/curvaDePresion.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Captura de tensión arterial": the entry of one measuring. Answers "SI" or "NO".
class panTomaTension : public forms::Form
{
    Q_OBJECT
public:
    panTomaTension();

    void mostrar(const presion::Toma &toma);
    presion::Toma toma() const;

private:
    void aceptar();

    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::TextBox mMaxima{QStringLiteral("mMaxima"), 7};
    forms::TextBox mMinima{QStringLiteral("mMinima"), 7};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
