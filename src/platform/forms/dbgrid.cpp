#include "platform/forms/dbgrid.h"

#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/controls.h"

#include <QAbstractTableModel>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTimer>

namespace forms
{

namespace
{

constexpr char16_t deletedMark[] = u"#Eliminado";
constexpr int linePixels = 24;
constexpr int narrowestColumn = 70;
constexpr int widestByHeading = 260;
constexpr int secretDots = 6; // whatever the length
constexpr int rowsAtOnce =
    60; // more than a screen has room for, and no more than a recordset reads on opening

/// A cell is typed in a field that takes no more than its column.
class CellDelegate : public QStyledItemDelegate
{
public:
    CellDelegate(QObject *parent, std::function<int(int)> length)
        : QStyledItemDelegate(parent), length_(std::move(length))
    {
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        auto *field = new TextBox({}, length_(index.column()));
        field->setParent(parent);
        field->setFrame(false);
        return field;
    }

private:
    std::function<int(int)> length_;
};

} // namespace

/// The rows of the Data's recordset, each read when it comes into sight.
class DBGrid::Model : public QAbstractTableModel
{
public:
    Model(Data &data, std::vector<GridColumn> columns, bool countsLater)
        : data_(data), columns_(std::move(columns)), countsLater_(countsLater)
    {
        startAnew();
    }

    /// The source may fail while it is asked: it is asked before the views are told, and a grid that cannot
    /// know its rows shows none until it is read anew.
    void reload()
    {
        known_ = false;
        int rows = 0;
        std::vector<int> ordinals(columns_.size(), -1);
        int lookOrdinal = -1;
        const auto ask = [&] {
            if (!data_.hasRecordset())
                return;
            for (std::size_t i = 0; i < columns_.size(); ++i)
                ordinals[i] = data_.recordset().ordinal(columns_[i].field);
            lookOrdinal = data_.recordset().ordinal(lookField_);
            rows = countRows();
            known_ = true;
        };
        const auto adopt = [&] {
            beginResetModel();
            rows_ = rows;
            ordinals_ = std::move(ordinals);
            lookOrdinal_ = lookOrdinal;
            endResetModel();
        };
        try {
            ask();
        } catch (...) {
            adopt();
            throw;
        }
        adopt();
    }

    void setRowLook(const QString &field, std::function<RowLook(const basic::Value &)> look)
    {
        lookField_ = field;
        look_ = std::move(look);
        reload();
    }

    /// Takes in rows that were added or went away.
    void follow()
    {
        if (!known_)
            return;
        int rows = 0;
        try {
            rows = countRows();
        } catch (...) {
            known_ = false;
            beginResetModel();
            rows_ = 0;
            endResetModel();
            throw;
        }
        if (rows > rows_) {
            beginInsertRows({}, rows_, rows - 1);
            rows_ = rows;
            endInsertRows();
        } else if (rows < rows_) {
            reload();
        }
    }

    /// How long a text of the column may be; 0 where it is none.
    int length(int column) const
    {
        const int ordinal = ordinals_[static_cast<std::size_t>(column)];
        if (ordinal < 0 || !data_.hasRecordset())
            return 0;
        const dao::FieldDef &field = data_.recordset().fields()[static_cast<std::size_t>(ordinal)];
        constexpr int longestMemo = 1 << 20;
        return field.type == dao::FieldType::Text   ? field.size
               : field.type == dao::FieldType::Memo ? longestMemo
                                                    : 0;
    }
    void setSecretsShown(bool shown) { secretsShown_ = shown; }
    /// The rows are others, and how many they are is not known.
    void startAnew()
    {
        counted_ = !countsLater_;
        reload();
    }
    bool counted() const { return counted_; }
    void countAll()
    {
        counted_ = true;
        follow();
    }
    void setEditable(bool editable) { editable_ = editable; }
    const std::vector<GridColumn> &columns() const { return columns_; }

    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto column = static_cast<std::size_t>(index.column());
        if (role == Qt::TextAlignmentRole)
            return static_cast<int>(alignment(column) | Qt::AlignVCenter);
        if (role == Qt::ForegroundRole || role == Qt::FontRole)
            return look(index, role);
        if ((role != Qt::DisplayRole && role != Qt::EditRole) || ordinals_[column] < 0)
            return {};
        try {
            const basic::Value value = data_.recordset().valueAt(index.row(), ordinals_[column]);
            const QString &pattern = columns_[column].pattern;
            if (columns_[column].secret && !secretsShown_)
                return value.isBlank() ? QString() : QString(secretDots, u'•');
            if (role == Qt::EditRole || pattern.isEmpty())
                return value.text();
            return basic::format(value, pattern);
        } catch (const dao::Error &error) {
            if (error.number() == dao::Error::RecordDeleted)
                return QString::fromUtf16(deletedMark);
            return QStringLiteral("#Error");
        }
    }

    bool setData(const QModelIndex &index, const QVariant &text, int role) override
    {
        if (role != Qt::EditRole)
            return false;
        const int ordinal = ordinals_[static_cast<std::size_t>(index.column())];
        try {
            data_.writeCell(index.row(), ordinal, text.toString());
        } catch (const std::exception &error) {
            showUnhandled(error);
            return false;
        }
        emit dataChanged(index, index);
        return true;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Horizontal &&
            role == Qt::TextAlignmentRole) // a heading stands over its values
            return static_cast<int>(alignment(static_cast<std::size_t>(section)) | Qt::AlignVCenter);
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return columns_[static_cast<std::size_t>(section)].heading;
    }

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
        const bool typedIn = editable_ && !columns_[static_cast<std::size_t>(index.column())].fixed &&
                             data_.hasRecordset() && data_.recordset().updatable();
        return typedIn ? flags | Qt::ItemIsEditable : flags;
    }

private:
    QVariant look(const QModelIndex &index, int role) const
    {
        if (!look_ || lookOrdinal_ < 0)
            return {};
        RowLook look;
        try {
            look = look_(data_.recordset().valueAt(index.row(), lookOrdinal_));
        } catch (const dao::Error &) {
            return {}; // a row that cannot be read shows so in its cells
        }
        if (role == Qt::ForegroundRole)
            return look.ink.isValid() ? QVariant(look.ink) : QVariant();
        if (!look.strong || ordinals_[static_cast<std::size_t>(index.column())] != lookOrdinal_)
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }

    int countRows()
    {
        if (!data_.hasRecordset())
            return 0;
        counted_ = counted_ || !data_.recordset().hasRow(rowsAtOnce);
        return counted_ ? static_cast<int>(data_.recordset().rowCount()) : rowsAtOnce;
    }

    Qt::Alignment alignment(std::size_t column) const
    {
        if (ordinals_[column] < 0 || !data_.hasRecordset())
            return Qt::AlignLeft;
        using dao::FieldType;
        switch (data_.recordset().fields()[static_cast<std::size_t>(ordinals_[column])].type) {
        case FieldType::Counter:
        case FieldType::Long:
        case FieldType::Integer:
        case FieldType::Double:
        case FieldType::Currency:
            return Qt::AlignRight;
        default:
            return Qt::AlignLeft;
        }
    }

    Data &data_;
    std::vector<GridColumn> columns_;
    std::vector<int> ordinals_;
    int rows_ = 0;
    bool known_ = false; ///< the source told how many rows it has
    bool countsLater_ = false;
    bool counted_ = true; ///< none are left beyond those in the model
    bool editable_ = false;
    bool secretsShown_ = false;
    QString lookField_;
    std::function<RowLook(const basic::Value &)> look_;
    int lookOrdinal_ = -1;
};

DBGrid::DBGrid(const QString &name)
{
    setObjectName(name);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(linePixels);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (QGuiApplication::mouseButtons() != Qt::NoButton) // by the person, not by the window
            columnsMoved_ = true;
    });
    connect(this, &QTableView::doubleClicked, this, [this] {
        if (editTriggers() == QAbstractItemView::NoEditTriggers)
            emit accepted();
    });
}

DBGrid::~DBGrid()
{
    dropModel();
}

void DBGrid::dropModel()
{
    setModel(nullptr);
    delete model_;
    model_ = nullptr;
    data_ = nullptr;
}

void DBGrid::setSource(Data &source, std::vector<GridColumn> columns)
{
    if (data_)
        data_->disconnect(this);
    dropModel();
    data_ = &source;
    model_ = new Model(source, std::move(columns), countsLater_);
    model_->setEditable(editTriggers() != QAbstractItemView::NoEditTriggers);
    setModel(model_);
    delete itemDelegate();
    setItemDelegate(new CellDelegate(this, [this](int column) { return model_->length(column); }));
    sizeColumns();
    connect(&source, &Data::refreshed, this, [this] {
        orNone([this] { model_->startAnew(); });
        countLater();
    });
    connect(&source, &Data::rowWritten, this, [this] {
        orNone([this] { model_->follow(); });
        viewport()->update();
    });
    connect(&source, &Data::reposition, this, &DBGrid::followData);
    connect(&source, &QObject::destroyed, this, &DBGrid::dropModel);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DBGrid::leadData);
    followData();
    countLater();
}

/// Once the rows that were read are painted; another source may have come by then.
void DBGrid::countLater()
{
    if (model_->counted())
        return;
    QTimer::singleShot(0, model_, [this] {
        orNone([this] { model_->countAll(); });
        followData();
        emit rowsCounted();
    });
}

bool DBGrid::allCounted() const
{
    return !model_ || model_->counted();
}

void DBGrid::sizeColumns()
{
    QFont bold = horizontalHeader()->font();
    bold.setWeight(QFont::DemiBold);
    const QFontMetrics metrics(bold);
    constexpr int padding = 20;
    for (std::size_t i = 0; i < model_->columns().size(); ++i) {
        const GridColumn &column = model_->columns()[i];
        const int heading = metrics.horizontalAdvance(column.heading) + padding;
        const int byHeading = qBound(narrowestColumn, heading, widestByHeading);
        setColumnWidth(static_cast<int>(i), column.width > 0 ? qMax(column.width, heading) : byHeading);
    }
}

int DBGrid::dataRow() const
{
    return data_ && data_->hasRow() ? static_cast<int>(data_->recordset().absolutePosition()) : -1;
}

/// Where the rows cannot be known the grid shows none; then none may be current either, or a command would
/// work on a row that nobody sees.
void DBGrid::orNone(const std::function<void()> &ask)
{
    const QScopedValueRollback following(following_, true);
    try {
        ask();
    } catch (...) {
        data_->chooseNone();
        throw;
    }
}

/// The Data stands on another row: so does the grid.
void DBGrid::followData()
{
    if (!model_)
        return;
    const int left = currentRow();
    int row = -1;
    orNone([&] {
        model_->follow();
        row = dataRow();
        viewport()->update(); // the model keeps no values: what is in sight is read anew
        standOn(row);
    });
    if (row != left)
        emit rowChanged(row);
}

/// The person went to another row: so does the Data, unless the row left cannot be written.
void DBGrid::leadData(const QModelIndex &current)
{
    if (following_ || !current.isValid() || current.row() == dataRow())
        return;
    const int row = current.row();
    try {
        const QScopedValueRollback following(following_, true);
        data_->change([row](dao::Recordset &rows) { rows.setAbsolutePosition(row); });
    } catch (const std::exception &error) {
        const QScopedValueRollback following(following_, true);
        standOn(dataRow());
        showUnhandled(error);
        return;
    }
    emit rowChanged(row);
}

/// The row in sight is the one that the commands work on, or none is.
void DBGrid::standOn(int row)
{
    if (row == currentRow() && (row >= 0 || !selectionModel()->hasSelection()))
        return;
    setCurrentIndex(row < 0 ? QModelIndex() : model_->index(row, qMax(0, currentIndex().column())));
    if (row < 0)
        clearSelection();
}

void DBGrid::setEditable(bool editable)
{
    setEditTriggers(editable ? QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                   QAbstractItemView::AnyKeyPressed
                             : QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(editable ? QAbstractItemView::SelectItems : QAbstractItemView::SelectRows);
    if (model_)
        model_->setEditable(editable);
}

void DBGrid::setRowLook(const QString &field, std::function<RowLook(const basic::Value &)> look)
{
    if (model_)
        model_->setRowLook(field, std::move(look));
}

void DBGrid::setSecretsShown(bool shown)
{
    if (model_)
        model_->setSecretsShown(shown);
    viewport()->update();
}

int DBGrid::currentRow() const
{
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

void DBGrid::setCurrentRow(int row)
{
    if (model_)
        setCurrentIndex(row < 0 ? QModelIndex() : model_->index(row, qMax(0, currentIndex().column())));
}

void DBGrid::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid() && state() != QAbstractItemView::EditingState &&
        editTriggers() == QAbstractItemView::NoEditTriggers)
        emit accepted();
    else
        QTableView::keyPressEvent(event);
}

} // namespace forms

#include "moc_dbgrid.cpp"
