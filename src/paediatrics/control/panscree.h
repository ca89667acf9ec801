#pragma once

#include "paediatrics/control/pregunta.h"
#include "platform/forms/form.h"

/// "Datos de Screening": the newborn's metabolic screening of the patient whose number is the tag. The tag is
/// "SI" once it is accepted.
class panscree : public forms::Form
{
    Q_OBJECT
public:
    panscree();

protected:
    void activate() override;

private:
    void guardar();
    void imprimir();

    qint64 paciente_ = 0;
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    sano::PanelDeScreening panel_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
};
