#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/layout.h"

#include <optional>

namespace presupuestos
{

/// The lines of one budget in a window: a grid in which quantity and price are typed, and their total.
class Renglones : public QObject
{
    Q_OBJECT
public:
    /// `formato` shows the total.
    explicit Renglones(const QString &formato);

    void mostrar(std::optional<qint64> presupuesto);
    std::optional<qint64> presupuesto() const { return presupuesto_; }
    bool vacio() const { return !Data3.hasRow(); }
    /// Reads them again after lines were added, and stands on the last.
    void releer();
    /// Lets the person choose practices from the price list for the budget. `quien` is what the list is told
    /// of its caller.
    void agregar(const QString &quien);
    /// Takes off the current line, after a question.
    void quitar();

    forms::Item grilla();
    forms::Item renglonDelTotal();

private:
    void recalcular();
    void mostrarTotal();

    QString formato_;
    std::optional<qint64> presupuesto_;
    forms::Data Data3{QStringLiteral("Data3")};
    forms::DBGrid DBGrid3{QStringLiteral("DBGrid3")};
    forms::TextBox Text5{QStringLiteral("Text5")};
};

} // namespace presupuestos
