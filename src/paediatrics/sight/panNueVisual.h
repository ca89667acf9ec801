#pragma once

#include "paediatrics/sight/agudeza.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Medición de la agudeza visual": the entry of one test. Answers "SI" or "NO".
class panNueVisual : public forms::Form
{
    Q_OBJECT
public:
    panNueVisual();

    agudeza::Medicion medicion() const;

private:
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::ComboBox> Combo1{QStringLiteral("Combo1")}; ///< by agudeza::columnas()
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
