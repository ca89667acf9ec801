#pragma once

#include "core/records/comando.h"
#include "core/records/filas.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

#include <functional>

namespace records
{

/// A window over the rows of one table: a grid, the fields of the current row bound to `Data1`, and commands.
/// What was typed in a row is written when the row is left and when the window closes. A window of this kind
/// declares its columns, its commands in the layout, and what is its own.
class Tabla : public forms::Form
{
    Q_OBJECT
protected:
    Tabla(const QString &window, const QString &title, std::vector<forms::GridColumn> columns);

    /// The rows to show; read when the window opens.
    void setSource(const QString &sql);
    /// Reads the rows again and stands on the first.
    void refresh() { Data1.refresh(); }
    /// Reads the rows again and stays on the current one; on the first when it is gone.
    void reread();

    /// The commands, for the layout. `name` is the button's name.
    forms::CommandButton &command(const QString &name, const QString &caption, const QString &icon,
                                  std::function<void()> work, Before before = {});
    /// A command on the current row: disabled without one.
    forms::CommandButton &rowCommand(const QString &name, const QString &caption, const QString &icon,
                                     std::function<void()> work, Before before = {});
    forms::CommandButton &deletes(const QString &name, const QString &caption, Before before);
    forms::CommandButton &closes(const QString &name, const QString &caption);

    /// Adds a row with what `fill` sets, and stands on it.
    void addRow(const Fill &fill);
    /// Shows a dialogue that takes a row in, with the window's tag, and adds the row when it answers "SI".
    void capture(forms::Form &dialogue, const Fill &fill);
    /// Deletes the current row, after the gate and the question; what was typed goes with it.
    virtual void deleteRow();

    /// False refuses the deletion of the current row; the refusal is told by the window.
    virtual bool mayDelete() { return true; }
    /// Another row is current, or none.
    virtual void rowShown() {}

    void load() override;
    bool queryUnload() override;

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};

private:
    void showRow();
    std::vector<forms::CommandButton *> ofTheRow_;
};

/// The dated records of the patient whose number is the window's tag, read anew at each activation; the
/// current one stays so.
class ListaDelPaciente : public Tabla
{
    Q_OBJECT
protected:
    /// `source` has %1 where the patient's number goes.
    ListaDelPaciente(const QString &window, const QString &title, std::vector<forms::GridColumn> columns,
                     const QString &source);

    qint64 paciente() const { return paciente_; }
    void load() override {} ///< the rows depend on the tag
    void activate() override;

private:
    QString source_;
    qint64 paciente_ = 0;
};

} // namespace records
