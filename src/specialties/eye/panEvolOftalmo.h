#pragma once

#include "platform/forms/chart.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace oftalmo
{

/// A value of each eye on a day; one that was not taken, or is no figure, is nothing.
struct Medida {
    QDate fecha;
    std::optional<double> derecho, izquierdo;
};

/// The values of both eyes over the visits: the right eye is a red line of circles, the left a blue one of
/// squares.
class GraficoDeOjos : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    /// `hasta` is the scale's end; above `limite` values are not normal, if there is one.
    GraficoDeOjos(const QString &nombre, double hasta, double paso, std::optional<double> limite = {});

    void mostrar(std::vector<Medida> medidas);
    std::vector<forms::ChartValue> chartValues() const override;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    QPointF donde(const QRectF &cuadro, QDate fecha, double valor) const;
    void pintarEscala(QPainter &pintor, const QRectF &cuadro) const;

    std::vector<Medida> medidas_; ///< by date
    double hasta_, paso_;
    std::optional<double> limite_;
};

} // namespace oftalmo

/// Acuity and pressure of the patient in the tag over the eye visits.
class panEvolOftalmo : public forms::Form
{
    Q_OBJECT
public:
    panEvolOftalmo();

protected:
    void load() override;

private:
    void mostrarAgudeza();
    std::vector<oftalmo::Medida> medidas(const QString &derecho, const QString &izquierdo,
                                         std::optional<double> (*leer)(const QString &)) const;

    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::ComboBox comboAgudeza{QStringLiteral("comboAgudeza")};
    oftalmo::GraficoDeOjos Graph1{QStringLiteral("Graph1"), 1.2, 0.2};
    oftalmo::GraficoDeOjos Graph2{QStringLiteral("Graph2"), 40, 10, 21};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
