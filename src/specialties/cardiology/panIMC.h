#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "specialties/cardiology/escalaDelImc.h"

#include <QSlider>

/// "Cálculo y determinación del I.M.C." of the patient whose number is the tag: the index of every measuring,
/// and the last one between what is too little and too much. The slider, once moved, tells the weight that
/// another index would be at the last height.
class panIMC : public forms::Form
{
    Q_OBJECT
public:
    panIMC();

protected:
    void activate() override;

private:
    void leer();
    void mostrarUltima(double imc, const basic::Date &fecha);
    void decirPeso();

    double ultimaTalla_ = 0; ///< cm
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::Label Label1{QStringLiteral("Label1")}; ///< the day of the last measuring
    forms::Label Label2{QStringLiteral("Label2")}; ///< its index
    forms::Label lblPeso{QStringLiteral("lblPeso")};
    QSlider Slider1{Qt::Horizontal};
    EscalaDelImc escala_{QStringLiteral("lblEscala")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
