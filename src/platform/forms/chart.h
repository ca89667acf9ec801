#pragma once

#include <QString>

#include <vector>

namespace forms
{

/// One value of a chart under the label it stands at.
struct ChartValue {
    QString label;
    double value = 0;
};

/// A widget that shows figures as bars, slices or points, and tells them.
class Charted
{
public:
    virtual ~Charted() = default;
    /// In the order of the drawing, one series after another.
    virtual std::vector<ChartValue> chartValues() const = 0;
};

} // namespace forms
