#pragma once

#include "core/records/tabla.h"
#include "paediatrics/pressure/curvaDePresion.h"

/// "Percentilación de la tensión arterial": the blood pressures of the patient whose number is the tag, over
/// the percentile curves of the sex, and in words beside the list.
class panTension : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panTension();

protected:
    void activate() override;
    void rowShown() override;

private:
    void disponer();
    void leerPaciente();
    void dibujar();
    void nueva();
    void cambiar();
    void borrar();
    void imprimir();
    std::optional<presion::Toma> tomaActual();
    QString enPalabras(presion::Cual cual, const presion::Toma &toma) const;

    QString sexo_;
    QChar letra_; ///< of the sex; null when no curve is drawn
    std::optional<basic::Date> nacimiento_;
    std::vector<presion::Toma> tomas_;
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    presion::Curva Picture1{QStringLiteral("Picture1"), presion::Cual::Minima};
    presion::Curva Picture2{QStringLiteral("Picture2"), presion::Cual::Maxima};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::Label lblMaxima{QStringLiteral("lblMaxima")};
    forms::Label lblMinima{QStringLiteral("lblMinima")};
};
