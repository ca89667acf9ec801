#pragma once

#include "sheet.h"

/// The days of a month of age, as the reference tables count it.
inline constexpr double daysOfMonth = 30.4375;

/// Twips of a distance given in pixels of the screen.
constexpr double px(double pixels)
{
    return 15 * pixels;
}

/// Grid lines of age between two ages (days), as dense as the frame's scale lets them be read: labelled in
/// months up to two years, in years and the months between them beyond.
std::vector<Tick> ageTicks(const charts::Frame &frame, double fromDays, double toDays);
/// Grid lines of height (centimetres) across a chart of weight for height.
std::vector<Tick> heightTicks(double from, double to);

/// The step between fine lines of a measure's values in a frame (stored unit).
double fineStep(charts::Measure measure, const charts::Frame &frame);
/// Grid lines of a measure's values; weights are labelled in kilograms.
std::vector<Tick> valueTicks(charts::Measure measure, const charts::Frame &frame, double from, double to);
