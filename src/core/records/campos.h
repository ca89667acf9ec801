#pragma once

#include "platform/dao/recordset.h"
#include "platform/dao/schema.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

#include <QButtonGroup>
#include <QStringList>

#include <map>
#include <memory>

namespace records
{

struct SinMayusculas {
    bool operator()(const QString &a, const QString &b) const
    {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    }
};

/// What is kept by column; names go without regard to case.
using Valores = std::map<QString, basic::Value, SinMayusculas>;

/// The value of a column; Null when it is not among them.
basic::Value valor(const Valores &valores, const QString &columna);

/// The one row that a patient has in a table, by the column that holds the patient's number.
struct FilaPropia {
    QString tabla, clave;

    /// All its columns; none without a row. Throws dao::Error.
    Valores leer(qint64 paciente) const;
    /// Writes the columns named and no others; a row that is missing is made, with `alCrear` in it. Throws
    /// dao::Error.
    void escribir(qint64 paciente, const Valores &valores, const Valores &alCrear = {}) const;
};

/// The fields of a window over one row of a table, each tied to the column that keeps it; they take no more
/// than the column does. The window reads and writes them all at once.
class Campos
{
public:
    /// What a column is written in ("cm"), shown in its text as long as nothing is.
    using Unidades = std::map<QString, QString, SinMayusculas>;
    explicit Campos(const QString &tabla, Unidades unidades = {});

    forms::TextBox &texto(const QString &columna);
    forms::CheckBox &casilla(const QString &columna, const QString &caption);
    /// The buttons of a column that keeps the place of the one chosen, so many in a row.
    forms::Item opciones(const QString &columna, const QStringList &palabras, int porRenglon);
    /// A control that the window itself names: text, memo, combo or date.
    void ligar(const QString &columna, QWidget &control);
    /// A text with the column's name for a label.
    forms::FieldRow renglon(const QString &columna);
    /// Such texts, and further rows below them.
    forms::Item textos(const QStringList &columnas, const std::vector<forms::FieldRow> &otras = {});

    /// A column that holds nothing (Null) leaves its field as it is.
    void mostrar(const Valores &valores);
    /// A text left empty is stored as empty; a group with nothing chosen stores nothing.
    Valores valores() const;

    /// Calls whenever one of the texts or groups changes.
    void alCambiar(const std::function<void()> &trabajo);

private:
    dao::TableDef tabla_;
    Unidades unidades_;
    std::map<QString, QWidget *, SinMayusculas> controles_;
    std::map<QString, std::unique_ptr<QButtonGroup>, SinMayusculas> grupos_;
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::OptionButton> Opcion{QStringLiteral("Opcion")};
};

} // namespace records
