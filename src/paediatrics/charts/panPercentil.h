#pragma once

#include "paediatrics/charts/chartcatalogue.h"
#include "platform/basic/value.h"
#include "platform/dao/recordset.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// One of the twelve classical charts: a patient's measures on a percentile picture. The tag is a patient's
/// number or "<TODOS>" for the measures of all patients; empty draws nothing.
class panPercentil : public forms::Form
{
    Q_OBJECT
public:
    explicit panPercentil(const charts::ClassicalChart &chart);

protected:
    void load() override;
    void activate() override;
    bool eventFilter(QObject *control, QEvent *evento) override;

private:
    /// What a point says to a person who points at it.
    struct Punto {
        QPointF lugar; ///< twips
        QString dice;
    };

    void dibujarPaciente();
    void dibujarMedida(dao::Recordset &medidas, charts::Measure medida, basic::Date nacimiento);
    void redibujar();
    QString leyendaEn(QPointF pixel) const;
    void dibujarTodos();
    void imprimir();

    const charts::ClassicalChart &chart_;
    forms::PictureBox Picture1;
    forms::CheckBox chkCorregida{QStringLiteral("chkCorregida"), QStringLiteral("&Edad corregida")};
    int diasDePrematuro_ = 0;
    std::vector<Punto> puntos_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
