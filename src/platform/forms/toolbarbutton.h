#pragma once

#include <QToolButton>

namespace forms
{

/// A button whose picture stands above its caption, flat until it is pointed at. `icon` names a picture of
/// the program's own set.
class ToolbarButton : public QToolButton
{
    Q_OBJECT
public:
    ToolbarButton(const QString &name, const QString &caption, const QString &icon);
};

} // namespace forms
