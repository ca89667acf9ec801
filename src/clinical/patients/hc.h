#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

#include <QTableWidget>

namespace clinical
{

/// A panel of allergy tests: the numbered columns that share a prefix, each "SI" or "-". A click on a
/// result asks for its toggle.
class PanelDePruebas : public QTableWidget
{
    Q_OBJECT
public:
    explicit PanelDePruebas(const QString &name);

    /// Shows the results of these columns of the record.
    void mostrar(dao::Recordset &registro, const QStringList &columnas);

signals:
    void pulsada(const QString &columna);

private:
    QStringList columnas_;
};

} // namespace clinical

/// "Gestión Alergias": the personal history and allergy record of the patient in the tag, one row each.
class hc : public forms::Form
{
    Q_OBJECT
public:
    hc();

protected:
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item armarAntecedentes();
    forms::Item armarAmbiente();
    forms::Item armarDiagnostico();
    forms::Item armarPruebas();
    forms::Item casilla(const QString &campo, const QString &caption = {});
    forms::FieldRow renglon(const QString &campo);
    forms::FieldRow memo(const QString &campo);
    bool abrirRegistro();
    void prepararPruebas();
    void alternar(int grilla, const QString &columna);

    forms::Data Data1{QStringLiteral("Data1")};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ControlArray<forms::MemoBox> Text2{QStringLiteral("Text2")};
    forms::ControlArray<clinical::PanelDePruebas> Grid1{QStringLiteral("Grid1")};
    forms::SSTab SSTab2{QStringLiteral("SSTab2")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
