#include "platform/forms/data.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/forms/controls.h"

namespace forms
{

namespace
{

using dao::FieldType;

bool isNumber(FieldType type)
{
    return type == FieldType::Counter || type == FieldType::Long || type == FieldType::Integer ||
           type == FieldType::Double || type == FieldType::Currency;
}

/// What a text typed by a person means in a column. A text that cannot be read goes on as it is and is
/// refused by the engine with its own error.
basic::Value typedValue(const QString &text, FieldType type)
{
    const QString trimmed = text.trimmed();
    if (isNumber(type)) {
        if (trimmed.isEmpty())
            return basic::Null{};
        const auto number = basic::toNumber(trimmed);
        return number ? basic::Value(*number) : basic::Value(text);
    }
    if (type == FieldType::Date || type == FieldType::Time) {
        if (trimmed.isEmpty())
            return basic::Null{};
        const auto date = basic::toDate(trimmed);
        return date ? basic::Value(*date) : basic::Value(text);
    }
    if (type == FieldType::Bit) {
        const auto truth = basic::typedTruth(text);
        return truth ? basic::Value(*truth) : basic::Value(text);
    }
    return text;
}

/// How a kind of control shows a value, gives the one it shows, and tells of a change.
template <class Control>
struct Access;

template <>
struct Access<DTPicker> {
    static void show(DTPicker &c, const basic::Value &v) { c.setFieldValue(v); }
    static basic::Value shown(const DTPicker &c, FieldType) { return c.fieldValue(); }
    static constexpr auto changed = &QLineEdit::textChanged;
};
template <>
struct Access<QLineEdit> {
    static void show(QLineEdit &c, const basic::Value &v) { c.setText(v.text()); }
    static basic::Value shown(const QLineEdit &c, FieldType type) { return typedValue(c.text(), type); }
    static constexpr auto changed = &QLineEdit::textChanged;
};
template <>
struct Access<QPlainTextEdit> {
    static void show(QPlainTextEdit &c, const basic::Value &v) { c.setPlainText(v.text()); }
    static basic::Value shown(const QPlainTextEdit &c, FieldType type)
    {
        return typedValue(c.toPlainText(), type);
    }
    static constexpr auto changed = &QPlainTextEdit::textChanged;
};
template <>
struct Access<ComboBox> {
    static void show(ComboBox &c, const basic::Value &v) { c.setValue(v.text()); }
    static basic::Value shown(const ComboBox &c, FieldType type) { return typedValue(c.currentText(), type); }
    static constexpr auto changed = &QComboBox::currentTextChanged;
};
template <>
struct Access<QAbstractButton> {
    static void show(QAbstractButton &c, const basic::Value &v) { c.setChecked(v.truth()); }
    static basic::Value shown(const QAbstractButton &c, FieldType) { return c.isChecked(); }
    static constexpr auto changed = &QAbstractButton::toggled;
};

/// Does `work` with the control as what it is; false for one that only shows.
template <class Work>
bool withControl(QWidget &control, Work &&work)
{
    const auto as = [&](auto *kind) {
        auto *is = qobject_cast<decltype(kind)>(&control);
        if (is)
            work(*is);
        return is != nullptr;
    };
    return as(static_cast<DTPicker *>(nullptr)) || as(static_cast<QLineEdit *>(nullptr)) ||
           as(static_cast<QPlainTextEdit *>(nullptr)) || as(static_cast<ComboBox *>(nullptr)) ||
           as(static_cast<QAbstractButton *>(nullptr));
}

template <class Control>
using AccessOf = Access<std::remove_cvref_t<Control>>;

void showValue(QWidget &control, const basic::Value &value)
{
    const bool holds = withControl(control, [&](auto &c) { AccessOf<decltype(c)>::show(c, value); });
    if (auto *label = qobject_cast<QLabel *>(&control); !holds && label)
        label->setText(value.text());
}

basic::Value shownValue(QWidget &control, FieldType type)
{
    basic::Value value;
    withControl(control, [&](auto &c) { value = AccessOf<decltype(c)>::shown(c, type); });
    return value;
}

} // namespace

Data::Data(const QString &name, dao::Recordset::Kind kind) : kind_(kind)
{
    setObjectName(name);
}

Data::~Data() = default;

void Data::refresh(const QString &criterion)
{
    leaveRow();
    noneChosen_ = false;
    recordset_ = dao::Recordset();
    if (!database_)
        throw dao::Error(dao::Error::Closed, QStringLiteral("No hay una base de datos abierta."));
    try {
        recordset_ = database_->openRecordset(source_, kind_);
        if (!criterion.isEmpty() && !recordset_.eof()) {
            recordset_.findFirst(criterion);
            noneChosen_ = recordset_.noMatch();
        }
    } catch (const dao::Error &) {
        close();
        throw;
    }
    adoptLengths();
    updateControls();
    emit refreshed();
    emit reposition();
}

void Data::close()
{
    recordset_ = dao::Recordset();
    updateControls();
    emit refreshed();
}

/// What is typed in a field without a length of its own is as long as its column at most.
void Data::adoptLengths()
{
    for (const Binding &binding : bindings_) {
        const int ordinal = recordset_.ordinal(binding.field);
        const int size = ordinal < 0 ? 0 : recordset_.fields()[static_cast<std::size_t>(ordinal)].size;
        if (size <= 0 || recordset_.fields()[static_cast<std::size_t>(ordinal)].type != FieldType::Text)
            continue;
        if (auto *text = qobject_cast<TextBox *>(binding.control); text && !text->hasOwnLength())
            text->setMaxLength(size);
        else if (auto *combo = qobject_cast<ComboBox *>(binding.control); combo && combo->lineEdit())
            combo->lineEdit()->setMaxLength(size);
    }
}

void Data::bind(QWidget &control, const QString &field, const QString &pattern)
{
    const std::size_t index = bindings_.size();
    bindings_.push_back({&control, field, pattern, false});
    withControl(control, [&](auto &c) {
        connect(&c, AccessOf<decltype(c)>::changed, this, [this, index] {
            if (showing_)
                return;
            bindings_[index].changed = true;
            dirty_ = true;
        });
    });
    if (hasRecordset())
        updateControls();
}

bool Data::hasRow() const
{
    return hasRecordset() && !noneChosen_ &&
           (recordset_.editMode() == dao::Recordset::EditMode::Add ||
            (!recordset_.bof() && !recordset_.eof()));
}

void Data::leaveRow()
{
    if (!dirty_)
        return;
    if (hasRow())
        updateRecord();
    else
        forgetChanges();
}

void Data::forgetChanges()
{
    dirty_ = false;
    for (Binding &binding : bindings_)
        binding.changed = false;
}

void Data::updateRecord()
{
    const bool adding = hasRecordset() && recordset_.editMode() == dao::Recordset::EditMode::Add;
    if (!hasRow() || (!dirty_ && !adding))
        return;
    try {
        writeRow();
    } catch (const dao::Error &error) {
        // What was typed stays in sight to be put right, unless its row is gone.
        if (recordset_.editMode() == dao::Recordset::EditMode::Edit)
            recordset_.cancelUpdate();
        if (error.number() == dao::Error::RecordDeleted)
            updateControls();
        throw;
    }
    forgetChanges();
    emit rowWritten();
}

void Data::writeRow()
{
    if (recordset_.editMode() == dao::Recordset::EditMode::None)
        recordset_.edit();
    for (const Binding &binding : bindings_) {
        const int ordinal = recordset_.ordinal(binding.field);
        if (!binding.changed || ordinal < 0)
            continue;
        const FieldType type = recordset_.fields()[static_cast<std::size_t>(ordinal)].type;
        recordset_.setValue(ordinal, shownValue(*binding.control, type));
    }
    recordset_.update();
}

void Data::writeCell(qint64 row, int ordinal, const QString &text)
{
    change([&](dao::Recordset &rows) {
        if (rows.absolutePosition() != row)
            rows.setAbsolutePosition(row);
        const FieldType type = rows.fields().at(static_cast<std::size_t>(ordinal)).type;
        rows.edit([&] { rows.setValue(ordinal, typedValue(text, type)); });
    });
    emit cellWritten();
}

basic::Value Data::valueToShow(const Binding &binding) const
{
    const int ordinal = hasRow() ? recordset_.ordinal(binding.field) : -1;
    if (ordinal < 0)
        return {};
    try {
        const basic::Value value = recordset_.value(ordinal);
        return binding.pattern.isEmpty() ? value : basic::Value(basic::format(value, binding.pattern));
    } catch (const dao::Error &error) {
        if (error.number() != dao::Error::RecordDeleted && error.number() != dao::Error::NoCurrentRecord)
            throw;
        return {}; // a deleted row shows blank
    }
}

void Data::updateControls()
{
    showing_ = true;
    try {
        for (const Binding &binding : bindings_)
            showValue(*binding.control, valueToShow(binding));
    } catch (...) {
        showing_ = false;
        throw;
    }
    showing_ = false;
    forgetChanges();
}

bool Data::find(const QString &criterion)
{
    bool found = false;
    change([&](dao::Recordset &rows) {
        if (!rows.bof() || !rows.eof()) {
            rows.findFirst(criterion);
            found = !rows.noMatch();
        }
        noneChosen_ = !found;
    });
    return found;
}

void Data::chooseNone()
{
    leaveRow();
    noneChosen_ = true;
    updateControls();
    emit reposition();
}

void Data::set(const QString &field, const basic::Value &value)
{
    change([&](dao::Recordset &rows) { rows.edit([&] { rows[field] = value; }); });
}

void Data::deleteRow()
{
    if (!hasRow())
        throw dao::Error(dao::Error::NoCurrentRecord, QStringLiteral("No hay una fila elegida."));
    updateControls();
    recordset_.deleteRow();
    refresh();
}

void Data::change(const std::function<void(dao::Recordset &)> &work)
{
    leaveRow();
    noneChosen_ = false;
    try {
        work(recordset_);
    } catch (...) {
        if (hasRecordset() && recordset_.editMode() != dao::Recordset::EditMode::None)
            recordset_.cancelUpdate();
        showCurrent(); // it may have moved before it failed
        throw;
    }
    showCurrent();
}

/// A row that cannot be read is not current: nobody sees what a command would work on.
void Data::showCurrent()
{
    try {
        updateControls();
    } catch (...) {
        noneChosen_ = true;
        updateControls();
        emit reposition();
        throw;
    }
    emit reposition();
}

} // namespace forms

#include "moc_data.cpp"
