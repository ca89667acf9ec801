#pragma once

#include "platform/forms/data.h"

#include <QColor>
#include <QTableView>

#include <functional>

namespace forms
{

/// A column of a grid: heading, field, display pattern (basic::format; empty shows the value's text), width
/// in pixels (0: by its heading). A secret one shows dots until setSecretsShown(); a fixed one is not typed
/// in where the others are.
struct GridColumn {
    QString heading;
    QString field;
    QString pattern = {};
    int width = 0;
    bool secret = false;
    bool fixed = false;
};

/// How a row stands out from the others by one of its values.
struct RowLook {
    QColor ink;          ///< of the whole row; invalid: the grid's own
    bool strong = false; ///< the value itself is in bold

    static RowLook standingBack() { return {QColor(0x60, 0x6b, 0x75), false}; }
    static RowLook standingOut() { return {QColor(), true}; }
};

/// The rows of a Data, of which only those in sight are read. The grid's current row is the Data's; a
/// read-only grid (the default) selects whole rows.
class DBGrid : public QTableView
{
    Q_OBJECT
public:
    explicit DBGrid(const QString &name);
    ~DBGrid() override;

    void setSource(Data &data, std::vector<GridColumn> columns);
    void setEditable(bool editable);
    /// Gives each row the look that goes with its value of `field`; after setSource().
    void setRowLook(const QString &field, std::function<RowLook(const basic::Value &)> look);
    void setSecretsShown(bool shown);
    /// For tables of any size: the first rows are in sight at once, and how many there are is asked once they
    /// are.
    void setCountsLater(bool later) { countsLater_ = later; }
    bool allCounted() const;
    /// The person gave a column another width.
    bool columnsMoved() const { return columnsMoved_; }
    int currentRow() const;
    void setCurrentRow(int row);

signals:
    void rowChanged(int row); ///< after the Data has followed
    void rowsCounted();       ///< of setCountsLater(): all rows are known now
    void accepted();          ///< double click or Enter on a row

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Model;
    void dropModel();
    void sizeColumns();
    int dataRow() const;
    void followData();
    void orNone(const std::function<void()> &ask);
    void countLater();
    void leadData(const QModelIndex &current);
    void standOn(int row);
    Model *model_ = nullptr;
    Data *data_ = nullptr;
    bool following_ = false;
    bool columnsMoved_ = false;
    bool countsLater_ = false;
};

} // namespace forms
