#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

#include <QObject>

namespace clinical
{

/// The gynaecological summary of the patient's page: the row of `Gineco`, made when something is first
/// written in it. Each field is written when it is left.
class PanelGineco : public QObject
{
    Q_OBJECT
public:
    PanelGineco();

    void mostrar(qint64 paciente);
    forms::Item disposicion();

private:
    struct Columna {
        QWidget *control;
        QString nombre;
    };
    void escribir(const Columna &columna);
    bool eventFilter(QObject *control, QEvent *evento) override;
    void mostrarValor(const Columna &columna, const basic::Value &valor);
    basic::Value valorDe(const Columna &columna) const;

    forms::DTPicker dtfum{QStringLiteral("dtfum"), forms::DTPicker::Presence::Optional};
    forms::TextBox txtGestas{QStringLiteral("txtGestas"), 30};
    forms::TextBox txtParidad{QStringLiteral("txtParidad"), 30};
    forms::TextBox txtCiclos{QStringLiteral("txtCiclos"), 60};
    forms::ComboBox cboCantidad;
    forms::TextBox txtDolor{QStringLiteral("txtDolor"), 60};
    forms::ComboBox cbomac;
    forms::TextBox txtPets{QStringLiteral("txtPets"), 30};
    forms::TextBox txtMenarca{QStringLiteral("txtMenarca"), 30};
    std::vector<Columna> columnas_;
    qint64 paciente_ = 0;
};

} // namespace clinical
