#include "platform/forms/sidetabbar.h"

#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace forms
{

namespace
{

constexpr int tabHeight = 36, textMargin = 14, focusMargin = 4;

} // namespace

QSize SideTabBar::tabSizeHint(int index) const
{
    return {fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width() + 2 * textMargin, tabHeight};
}

void SideTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    for (int tab = 0; tab < count(); ++tab) {
        if (!isTabVisible(tab))
            continue;
        QStyleOptionTab option;
        initStyleOption(&option, tab);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        painter.drawItemText(option.rect.adjusted(textMargin, 0, -textMargin, 0),
                             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, option.palette,
                             isTabEnabled(tab), option.text, QPalette::WindowText);
        if (tab != currentIndex() || !hasFocus())
            continue;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = option.rect.adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace forms

#include "moc_sidetabbar.cpp"
