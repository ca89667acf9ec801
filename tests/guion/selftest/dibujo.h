#pragma once

#include "platform/forms/canvas.h"
#include "platform/forms/chart.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QSlider>

namespace selftest
{

/// Bars drawn by hand.
class Barras : public QWidget, public forms::Charted
{
    Q_OBJECT
public:
    explicit Barras(const QString &name);
    std::vector<forms::ChartValue> chartValues() const override { return {{"Enero", 12}, {"Febrero", 7.5}}; }
    QSize sizeHint() const override { return {160, 90}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// What a window draws itself, a chart, a slider, and menus on the right button. Label1 tells what the last
/// one reported.
class panDibujo : public forms::Form
{
    Q_OBJECT
public:
    panDibujo();

private:
    void fillCanvas();
    void report();
    void printCanvas();

    forms::Label Label1;
    forms::Canvas lienzo;
    Barras Graph1;
    QSlider Slider1;
    forms::ListBox List1;
    forms::CommandButton Command1;
};

} // namespace selftest
