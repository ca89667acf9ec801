#pragma once

#include <QTabBar>

namespace forms
{

/// Captions one below the other that are read as they stand; the toolkit's own are written upwards.
class SideTabBar : public QTabBar
{
    Q_OBJECT
protected:
    QSize tabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace forms
