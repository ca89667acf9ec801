#pragma once

#include "paediatrics/charts/chartcatalogue.h"
#include "paediatrics/charts/marcadores.h"
#include "platform/dao/recordset.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Curvas OMS": the browser of the thirty charts of the WHO for the patient in the tag.
class panCurvasOMS : public forms::Form
{
    Q_OBJECT
public:
    panCurvasOMS();

protected:
    void activate() override;

private:
    void mostrarCurva();
    void dibujar(const charts::WhoChart &chart);
    void dibujarFila(const charts::WhoChart &chart, dao::Recordset &medidas, basic::Date nacimiento);
    void imprimir();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("&Seleccione curva :")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::CheckBox Check1{QStringLiteral("Check1"),
                           QStringLiteral("&Incluye medidas de todos los pacientes?")};
    forms::CheckBox chkCorregida{QStringLiteral("chkCorregida"), QStringLiteral("&Edad corregida")};
    int diasDePrematuro_ = 0;
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::PictureBox Image1;
    charts::CapaDeMarcadores marcadores_{&Image1, charts::whoPictureBox.topLeft()};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Im&primir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
