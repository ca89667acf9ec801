#include "platform/forms/wrong.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVariant>

namespace forms
{

namespace
{

constexpr char markProperty[] = "wrong";
constexpr char hintProperty[] = "hintBeforeWrong";

/// The field may stand on a page that is not in sight.
void bringIntoSight(QWidget &field)
{
    for (QWidget *child = &field; child; child = child->parentWidget()) {
        QWidget *stack = child->parentWidget();
        auto *tabs = stack ? qobject_cast<QTabWidget *>(stack->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(child) >= 0)
            tabs->setCurrentWidget(child);
    }
}

void clearOnChange(QWidget &field)
{
    const auto clear = [&field] { clearWrong(field); };
    if (auto *line = qobject_cast<QLineEdit *>(&field))
        QObject::connect(line, &QLineEdit::textEdited, &field, clear);
    else if (auto *combo = qobject_cast<QComboBox *>(&field))
        QObject::connect(combo, &QComboBox::currentTextChanged, &field, clear);
    else if (auto *memo = qobject_cast<QPlainTextEdit *>(&field))
        QObject::connect(memo, &QPlainTextEdit::textChanged, &field, clear);
}

} // namespace

void markWrong(QWidget &field, const QString &why)
{
    if (!isMarkedWrong(field)) {
        if (!field.property(markProperty).isValid())
            clearOnChange(field);
        field.setProperty(hintProperty, field.toolTip());
        field.setProperty(markProperty, true);
        QPalette palette;
        palette.setColor(QPalette::Text, QColor(wrongInk));
        palette.setColor(QPalette::Base, QColor(0xfdecea));
        field.setPalette(palette);
    }
    field.setToolTip(why);
    bringIntoSight(field);
    field.setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(&field))
        line->selectAll();
}

void clearWrong(QWidget &field)
{
    if (!isMarkedWrong(field))
        return;
    field.setProperty(markProperty, false);
    field.setPalette({});
    field.setToolTip(field.property(hintProperty).toString());
}

bool isMarkedWrong(const QWidget &field)
{
    return field.property(markProperty).toBool();
}

} // namespace forms
