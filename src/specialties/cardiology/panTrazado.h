#pragma once

#include "platform/forms/canvas.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "specialties/cardiology/calibre.h"

/// A tracing at any size, with calipers for intervals and amplitudes: bars that are drawn along the picture,
/// by mouse or with Ctrl and the arrow keys. Nothing of it is stored.
class panTrazado : public forms::Form
{
    Q_OBJECT
public:
    /// `velocidad` is that of the paper, as the record tells it. Throws basic::Error when the file is no
    /// picture.
    panTrazado(const QString &archivo, const QString &velocidad);

private:
    void ponerCalibres();
    double entre(int uno, int otro) const;
    void calibrar();
    void medir();
    void ampliar(double factor);

    calibre::Escala escala_;
    forms::Canvas Image1;
    forms::Label lblIntervalo{QStringLiteral("lblIntervalo")};
    forms::Label lblAmplitud{QStringLiteral("lblAmplitud")};
    forms::Label lblAyuda{QStringLiteral("lblAyuda")};
    forms::TextBox Text1{QStringLiteral("Text1"), 20};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("A&mpliar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Reducir")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Ca&librar")};
};
