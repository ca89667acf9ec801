#pragma once

#include "platform/forms/data.h"

#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include <array>

namespace forms
{

/// The visible part of a Data: a caption between buttons that step through its rows. It bears the Data's
/// name, and its caption as window title.
class DataBar : public QWidget
{
    Q_OBJECT
public:
    explicit DataBar(Data &rows);
    void setCaption(const QString &caption);

private:
    enum Step { First, Previous, Next, Last };
    void step(Step to);
    void enableSteps();

    Data &rows_;
    QLabel caption_;
    std::array<QToolButton, 4> buttons_; ///< by Step
};

} // namespace forms
