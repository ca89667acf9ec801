#pragma once

#include "core/records/fichaDelPaciente.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/layout.h"

#include <QTableWidget>

#include <span>

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

/// A column and what it is called on the screen.
struct Campo {
    const char *columna, *caption;
};

} // namespace clinical

/// "Gestión Alergias": the personal history and allergy record of the patient in the tag, one row each.
class hc : public records::FichaDelPaciente
{
    Q_OBJECT
public:
    hc();

private:
    forms::Item armarAntecedentes();
    forms::Item armarAmbiente();
    forms::Item armarDiagnostico();
    forms::Item armarPruebas();
    forms::Item casilla(const clinical::Campo &campo);
    forms::FieldRow renglon(const clinical::Campo &campo);
    forms::FieldRow memo(const clinical::Campo &campo);
    forms::Item fila(std::span<const clinical::Campo> campos);
    std::vector<forms::FieldRow> todos(std::span<const clinical::Campo> campos,
                                       forms::FieldRow (hc::*renglonDe)(const clinical::Campo &));
    void filaLeida() override;
    void alternar(int grilla, const QString &columna);

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ControlArray<forms::MemoBox> Text2{QStringLiteral("Text2")};
    forms::ControlArray<clinical::PanelDePruebas> Grid1{QStringLiteral("Grid1")};
    forms::SSTab SSTab2{QStringLiteral("SSTab2")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
