#pragma once

#include "platform/forms/form.h"
#include "specialties/eye/lienzo.h"

#include <QScrollArea>

namespace oftalmo
{

/// All drawings of a kind of the patient whose number is the tag, by date, one panel a visit. The buttons and
/// Ctrl with the wheel make them larger and smaller.
class Visor : public forms::Form
{
    Q_OBJECT
protected:
    Visor(const QString &ventana, const QString &titulo, Clase clase);
    void load() override;

private:
    void agregarPanel(const QString &rotulo, const Dibujo &dibujo);
    void ampliar(double factor);
    bool eventFilter(QObject *objeto, QEvent *evento) override;

    const Clase clase_;
    const QString titulo_;
    double ancho_; ///< of a drawing, in pixels
    forms::ControlArray<forms::Label> lblDibujo{QStringLiteral("lblDibujo")};
    forms::ControlArray<forms::CommandButton> comImprimir{QStringLiteral("comImprimir")};
    forms::ControlArray<Lienzo> Picture1{QStringLiteral("Picture1")};
    forms::ControlArray<forms::Label> lblObservaciones{QStringLiteral("lblObservaciones")};
    QScrollArea *paneles_;
    forms::Label lblVacio{QStringLiteral("lblVacio"), QStringLiteral("No hay dibujos registrados")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("A&mpliar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Reducir")};
};

/// The viewer of a patient's drawings of a kind.
void dibujoOjo(qint64 numero, Clase clase);

} // namespace oftalmo

class panGraBioX : public oftalmo::Visor
{
    Q_OBJECT
public:
    panGraBioX();
};

class panGraFondoX : public oftalmo::Visor
{
    Q_OBJECT
public:
    panGraFondoX();
};
