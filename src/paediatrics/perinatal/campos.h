#pragma once

#include "paediatrics/perinatal/ficha.h"
#include "platform/dao/schema.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

#include <QButtonGroup>

#include <memory>

namespace perinatal
{

extern const QStringList gruposSanguineos;

/// The fields of a window over the birth record, each tied to the column that keeps it. They take no more
/// than the column does.
class Campos
{
public:
    explicit Campos(const QString &tabla);

    forms::TextBox &texto(const QString &columna);
    forms::CheckBox &casilla(const QString &columna, const QString &caption);
    /// The buttons of a column with options, so many in a row.
    forms::Item opciones(const QString &columna, int porRenglon);
    /// A control that the window itself names: text, memo or combo.
    void ligar(const QString &columna, QWidget &control);
    /// Texts with the column's name for a label, and further rows below them.
    forms::Item textos(const QStringList &columnas, const std::vector<forms::FieldRow> &otras = {});

    /// A column that holds nothing (Null) leaves its field as it is.
    void mostrar(const Valores &valores);
    /// A text left empty is stored as empty; a group with nothing chosen stores nothing.
    Valores valores() const;

    /// Calls whenever one of the texts or groups changes.
    void alCambiar(const std::function<void()> &trabajo);

private:
    dao::TableDef tabla_;
    std::map<QString, QWidget *, SinMayusculas> controles_;
    std::map<QString, std::unique_ptr<QButtonGroup>, SinMayusculas> grupos_;
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::OptionButton> Opcion{QStringLiteral("Opcion")};
};

} // namespace perinatal
