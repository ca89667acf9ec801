#include "ticks.h"

#include <array>
#include <cmath>

namespace
{

struct Steps {
    double fine;
    double labelled;
};

/// From the densest to the widest.
constexpr std::array<Steps, 6> ladder{{{0.1, 0.5}, {0.2, 1}, {0.5, 1}, {0.5, 2}, {1, 2}, {1, 5}}};
constexpr Steps widest{2, 10};
constexpr Steps tall{5, 10};

double unitOf(charts::Measure measure)
{
    using enum charts::Measure;
    return measure == Peso || measure == PesoParaTalla ? 1000 : 1;
}

Steps stepsOf(charts::Measure measure, const charts::Frame &frame)
{
    const double scale = frame.box.height() / frame.fullHeight * unitOf(measure);
    for (const Steps &steps : ladder)
        if (steps.fine * scale >= px(5) && steps.labelled * scale >= px(19))
            return steps;
    return widest.fine * scale >= px(5) ? widest : tall;
}

bool isMultiple(double value, double step)
{
    return std::abs(value / step - std::round(value / step)) < 1e-6;
}

std::vector<Tick> evenTicks(double from, double to, Steps steps, double unit)
{
    std::vector<Tick> ticks;
    for (double i = std::ceil(from / unit / steps.fine - 1e-6); i * steps.fine * unit <= to + 1e-6; ++i) {
        const double value = i * steps.fine;
        if (isMultiple(value, steps.labelled))
            ticks.push_back({value * unit, 1, QString::number(value).replace(u'.', u',')});
        else
            ticks.push_back({value * unit, 0});
    }
    return ticks;
}

/// The label of a month in charts that go on past two years: whole years by name, the months between bare.
QString monthWithinYears(double month, double labelledMonths)
{
    if (month == 0)
        return "Nac.";
    if (isMultiple(month, 12))
        return month == 12 ? "1 año" : QString("%1 años").arg(month / 12);
    return isMultiple(month, labelledMonths) ? QString::number(std::fmod(month, 12)) : QString();
}

Tick ageTick(double month, double labelled, bool bareMonths, bool bareYears)
{
    const bool isLabelled = isMultiple(month, labelled);
    const bool isYear = isMultiple(month, 12) && (isLabelled || !bareYears);
    QString label;
    if (isLabelled && bareYears)
        label = QString::number(month / 12);
    else if (isLabelled)
        label = bareMonths ? QString::number(month) : monthWithinYears(month, labelled);
    return {month * daysOfMonth, isYear ? 2 : isLabelled ? 1 : 0, label};
}

} // namespace

std::vector<Tick> ageTicks(const charts::Frame &frame, double fromDays, double toDays)
{
    const double month = frame.box.width() / frame.fullWidth * daysOfMonth;
    const bool bareMonths = toDays < 25 * daysOfMonth;
    const bool bareYears = toDays > 7 * 12 * daysOfMonth;
    double fine = month >= px(16) ? 0.5 : month >= px(7) ? 1 : 3;
    double labelled = month >= px(16) ? 1 : month >= px(7) ? 3 : 6;
    if (!bareMonths && !bareYears && labelled == 1)
        labelled = 3;
    if (bareYears) {
        fine = month * 12 >= px(18) ? 6 : 12;
        labelled = month * 12 >= px(18) ? 12 : 24;
    }
    std::vector<Tick> ticks;
    // A table's month is a rounded day: the last line may lie a day past the end of the frame.
    for (double i = std::ceil((fromDays - 1) / daysOfMonth / fine); i * fine * daysOfMonth <= toDays + 6; ++i)
        ticks.push_back(ageTick(i * fine, labelled, bareMonths, bareYears));
    return ticks;
}

std::vector<Tick> heightTicks(double from, double to)
{
    return evenTicks(from, to, {1, 5}, 1);
}

double fineStep(charts::Measure measure, const charts::Frame &frame)
{
    return stepsOf(measure, frame).fine * unitOf(measure);
}

std::vector<Tick> valueTicks(charts::Measure measure, const charts::Frame &frame, double from, double to)
{
    return evenTicks(from, to, stepsOf(measure, frame), unitOf(measure));
}
