#pragma once

#include "paediatrics/control/renglonesDelPaciente.h"

/// "Adolescencia": what is spoken of with an adolescent, an aspect a row, and which of them are an alarm.
class panAdole : public sano::RenglonesDelPaciente
{
    Q_OBJECT
public:
    panAdole();

private:
    QString enPalabras(dao::Recordset &fila) const override;

    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("A&larma")};
    forms::MemoBox Text1{QStringLiteral("Text1")};
};
