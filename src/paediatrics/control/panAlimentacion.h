#pragma once

#include "paediatrics/control/renglonesDelPaciente.h"

/// "Tolerancia Alimentaria del paciente": the foods that the patient was given, since when, and whether they
/// are tolerated.
class panAlimentacion : public sano::RenglonesDelPaciente
{
    Q_OBJECT
public:
    panAlimentacion();

private:
    void comenzar(dao::Recordset &fila) override;
    QString enPalabras(dao::Recordset &fila) const override;

    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("&Lo tolera")};
    forms::MemoBox Text2{QStringLiteral("Text2")};
};
