#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "specialties/risk/escala.h"

/// "Calculadora de riesgo operatorio": a grid of factors; those chosen add up to one of five classes. Nothing
/// of it is kept; it can be printed, for the patient whose number is the tag if there is one.
class panRiesgoOperatorio : public forms::Form
{
    Q_OBJECT
public:
    panRiesgoOperatorio();

private:
    /// A factor of the grid, chosen and left with the mouse, the space bar or Enter.
    class Celda : public forms::Label
    {
    public:
        Celda(const QString &nombre, const QString &texto);

    protected:
        void keyPressEvent(QKeyEvent *evento) override;
        void focusInEvent(QFocusEvent *evento) override;
        void focusOutEvent(QFocusEvent *evento) override;
        void paintEvent(QPaintEvent *evento) override;
    };

    void agregarGrilla();
    void alternar(int celda);
    bool elegida(int celda) const;
    void sumar();
    void imprimir();

    // What others stand in ends after them.
    QWidget grilla_;
    riesgo::Escala escala_{QStringLiteral("Command2"), riesgo::Escala::Lugar::AlMedio};
    forms::ControlArray<Celda> celdaR{QStringLiteral("celdaR")};
    forms::ControlArray<forms::Label> sumaPunto{QStringLiteral("sumaPunto")};
    forms::ControlArray<forms::Label> Label6{QStringLiteral("Label6")};
    forms::ControlArray<forms::Label> Picture1{QStringLiteral("Picture1")};
    forms::Label Label8{QStringLiteral("Label8")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
