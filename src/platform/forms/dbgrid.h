#pragma once

#include "platform/forms/data.h"

#include <QTableView>

namespace forms
{

/// A column of a grid: heading, field, display pattern (basic::format; empty shows the value's text), width
/// in pixels (0: by its heading).
struct GridColumn {
    QString heading;
    QString field;
    QString pattern = {};
    int width = 0;
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
    int currentRow() const;
    void setCurrentRow(int row);

signals:
    void rowChanged(int row); ///< after the Data has followed
    void accepted();          ///< double click or Enter on a row

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Model;
    void dropModel();
    void sizeColumns();
    int dataRow() const;
    void followData();
    void leadData(const QModelIndex &current);
    Model *model_ = nullptr;
    Data *data_ = nullptr;
    bool following_ = false;
};

} // namespace forms
