#pragma once

#include <QString>

class QMenuBar;

namespace menu
{

/// Fills the main window's menu bar from the tree. An item that leads nowhere in this program is disabled,
/// and a menu in which nothing can be done says why. Each menu bears its caption in the tree as its name.
void build(QMenuBar &bar);

/// The caption with "&" before a letter or digit that is not in `taken`, to which it is added: the beginning
/// of a word if one is free. A caption that has its own keeps it.
QString withMnemonic(const QString &caption, QString &taken);

} // namespace menu
