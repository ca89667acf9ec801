#pragma once

#include "platform/dao/database.h"

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

namespace forms
{

/// A record source with a current row that controls are bound to: they show the row, and what was changed
/// in them is written back when the row is left, refreshed or updateRecord() is called.
class Data : public QObject
{
    Q_OBJECT
public:
    /// A snapshot shows the rows as they were when they were read, whatever other stations do to them.
    explicit Data(const QString &name, dao::Recordset::Kind kind = dao::Recordset::Kind::Dynaset);
    ~Data() override;

    /// The database of every Data that is given no other; the session's.
    static void setDefaultDatabase(dao::Database *database) { defaultDatabase_ = database; }
    void setDatabase(dao::Database *database) { database_ = database; }
    void setRecordSource(const QString &sql) { source_ = sql; }
    QString recordSource() const { return source_; }
    /// Opens the record source anew and stands on the first row, or on the first that meets the criterion.
    /// Throws dao::Error; then no recordset is open.
    void refresh(const QString &criterion = {});
    void close(); ///< no row stays in sight, nor what was typed in one
    bool hasRecordset() const { return recordset_.isOpen(); }
    dao::Recordset &recordset() { return recordset_; }

    /// Binds a control of controls.h to a column by name: text, memo, check box (BIT), combo, date or label.
    /// A text shows the value by the pattern (basic::format) if there is one.
    void bind(QWidget &control, const QString &field, const QString &pattern = {});
    bool dirty() const { return dirty_; } ///< a bound control was changed and not written yet
    bool hasRow() const;                  ///< there is a current row, or one being added
    /// Writes the changed controls into the row, and a row being added to the table. Throws dao::Error; the
    /// controls then keep what was typed.
    void updateRecord();
    void updateControls(); ///< shows the row again, dropping what was changed
    void writeCell(qint64 row, int ordinal,
                   const QString &text); ///< for grids: stands on the row and writes one column

    /// Stands on the first row that meets the criterion; without one no row is chosen, and false.
    bool find(const QString &criterion);
    /// No row is current until one is gone to: what was chosen before must not be taken for it.
    void chooseNone();
    /// Writes one column of the current row.
    void set(const QString &field, const basic::Value &value);
    /// Deletes the current row and reads the rows anew; what was typed in it goes with it.
    void deleteRow();

    /// Runs a move, find, delete or edit on the recordset; writes changed controls first and tells the bound
    /// controls and grids afterwards.
    void change(const std::function<void(dao::Recordset &)> &work);

signals:
    void reposition();  ///< the current row is another, or none
    void refreshed();   ///< the rows are others
    void rowWritten();  ///< the bound controls' values are in the row
    void cellWritten(); ///< writeCell() wrote a column of the current row

private:
    struct Binding {
        QWidget *control;
        QString field, pattern;
        bool changed = false;
    };
    void leaveRow();
    void forgetChanges();
    void writeRow();
    void showCurrent();
    basic::Value valueToShow(const Binding &binding) const;

    void adoptLengths();

    static inline dao::Database *defaultDatabase_ = nullptr;
    dao::Database *database_ = defaultDatabase_;
    const dao::Recordset::Kind kind_;
    QString source_;
    dao::Recordset recordset_;
    std::vector<Binding> bindings_;
    bool dirty_ = false;
    bool showing_ = false;
    bool noneChosen_ = false;
};

} // namespace forms
