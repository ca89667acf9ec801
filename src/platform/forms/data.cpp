#include "platform/forms/data.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
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
    return text;
}

void showValue(QWidget &control, const basic::Value &value)
{
    if (auto *text = qobject_cast<QLineEdit *>(&control))
        text->setText(value.text());
    else if (auto *memo = qobject_cast<QPlainTextEdit *>(&control))
        memo->setPlainText(value.text());
    else if (auto *combo = qobject_cast<ComboBox *>(&control))
        combo->setValue(value.text());
    else if (auto *check = qobject_cast<QAbstractButton *>(&control))
        check->setChecked(value.truth());
    else if (auto *date = qobject_cast<QDateEdit *>(&control))
        date->setDate(value.isBlank() ? basic::today().date() : value.date().date());
    else if (auto *label = qobject_cast<QLabel *>(&control))
        label->setText(value.text());
}

basic::Value shownValue(const QWidget &control, FieldType type)
{
    if (const auto *text = qobject_cast<const QLineEdit *>(&control))
        return typedValue(text->text(), type);
    if (const auto *memo = qobject_cast<const QPlainTextEdit *>(&control))
        return typedValue(memo->toPlainText(), type);
    if (const auto *combo = qobject_cast<const QComboBox *>(&control))
        return typedValue(combo->currentText(), type);
    if (const auto *check = qobject_cast<const QAbstractButton *>(&control))
        return check->isChecked();
    if (const auto *date = qobject_cast<const QDateEdit *>(&control))
        return date->date();
    return {};
}

/// Tells `changed` of every change of what the control shows; false for a control that only shows.
bool watch(QWidget &control, Data *data, const std::function<void()> &changed)
{
    if (auto *text = qobject_cast<QLineEdit *>(&control))
        QObject::connect(text, &QLineEdit::textChanged, data, changed);
    else if (auto *memo = qobject_cast<QPlainTextEdit *>(&control))
        QObject::connect(memo, &QPlainTextEdit::textChanged, data, changed);
    else if (auto *combo = qobject_cast<QComboBox *>(&control))
        QObject::connect(combo, &QComboBox::currentTextChanged, data, changed);
    else if (auto *check = qobject_cast<QAbstractButton *>(&control))
        QObject::connect(check, &QAbstractButton::toggled, data, changed);
    else if (auto *date = qobject_cast<QDateEdit *>(&control))
        QObject::connect(date, &QDateEdit::dateChanged, data, changed);
    else
        return false;
    return true;
}

} // namespace

Data::Data(const QString &name)
{
    setObjectName(name);
}

Data::~Data() = default;

void Data::refresh()
{
    leaveRow();
    recordset_ = dao::Recordset();
    if (!database_)
        throw dao::Error(dao::Error::Closed, QStringLiteral("No hay una base de datos abierta."));
    try {
        recordset_ = database_->openRecordset(source_, dao::Recordset::Kind::Dynaset);
    } catch (const dao::Error &) {
        updateControls();
        emit refreshed();
        throw;
    }
    updateControls();
    emit refreshed();
    emit reposition();
}

void Data::bind(QWidget &control, const QString &field, const QString &pattern)
{
    const std::size_t index = bindings_.size();
    bindings_.push_back({&control, field, pattern, false});
    watch(control, this, [this, index] {
        if (showing_)
            return;
        bindings_[index].changed = true;
        dirty_ = true;
    });
    if (hasRecordset())
        updateControls();
}

bool Data::hasRow() const
{
    return hasRecordset() && (recordset_.editMode() == dao::Recordset::EditMode::Add ||
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

void Data::change(const std::function<void(dao::Recordset &)> &work)
{
    leaveRow();
    work(recordset_);
    updateControls();
    emit reposition();
}

} // namespace forms

#include "moc_data.cpp"
