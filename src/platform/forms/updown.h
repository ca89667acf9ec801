#pragma once

#include <QAbstractSpinBox>

namespace forms
{

/// The pair of arrows beside a field whose value goes up and down by steps.
class UpDown : public QAbstractSpinBox
{
    Q_OBJECT
public:
    explicit UpDown(const QString &name);
    void stepBy(int steps) override { emit stepped(steps); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void stepped(int steps); ///< 1 for the upper arrow, -1 for the lower one

protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
};

} // namespace forms
