#include "platform/forms/toolbarbutton.h"

#include <QIcon>

namespace forms
{

ToolbarButton::ToolbarButton(const QString &name, const QString &caption, const QString &icon)
{
    setObjectName(name);
    setText(caption);
    setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(icon)));
    setIconSize({28, 28});
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setAutoRaise(true);
    setMinimumWidth(76);
}

} // namespace forms

#include "moc_toolbarbutton.cpp"
