#pragma once

#include "clinical/laboratory/graficoDeTendencia.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The results of one laboratory test of the patient in the tag over time, against what the practice holds
/// for normal.
class panTendencia : public forms::Form
{
    Q_OBJECT
public:
    panTendencia();

    /// The test that is shown first, if it has figures.
    void setEstudio(const QString &estudio) { primero_ = estudio; }

protected:
    void load() override;

private:
    void mostrar();
    void guardarRango();

    QString primero_;
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::ComboBox comboEstudio{QStringLiteral("comboEstudio")};
    forms::TextBox mMinimo{QStringLiteral("mMinimo"), 12};
    forms::TextBox mMaximo{QStringLiteral("mMaximo"), 12};
    GraficoDeTendencia Graph1{QStringLiteral("Graph1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Guardar rango"),
                                  QStringLiteral("guardar")};
};
