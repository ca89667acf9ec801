#include "platform/forms/style.h"

#include <QAbstractSpinBox>
#include <QStyleFactory>

namespace forms
{

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

/// Number and date fields are as high as text fields, which the style does not make them.
void Style::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (auto *field = qobject_cast<QAbstractSpinBox *>(widget))
        field->setMinimumHeight(field->fontMetrics().height() + 11);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                              const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_ItemViewItem:
        return size + QSize(0, 4);
    case CT_TabBarTab:
        return size + QSize(8, 2);
    default:
        return size;
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *data) const
{
    // The mnemonics of a dense screen are worth seeing at all times.
    if (hint == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace forms
