#pragma once

#include <QDir>
#include <QPainterPath>
#include <QPointF>
#include <QString>

#include <functional>
#include <map>
#include <vector>

/// Part of a reference table: its rows from one age (or height) to another, both included.
struct Slice {
    QString table; ///< file below the folder of tables, without the sex and ".csv"
    double from;
    double to;
    QString caption = {}; ///< told on the chart where a curve changes its reference
};

/// One percentile of one slice: a smooth curve through every row of the table.
class Curve
{
public:
    explicit Curve(std::vector<QPointF> knots);

    double first() const { return m_knots.front().x(); }
    double last() const { return m_knots.back().x(); }
    /// The value at `across`, within the curve's ends.
    double at(double across) const;
    /// The curve as a path, every place sent through `map`, which must be linear.
    QPainterPath path(const std::function<QPointF(QPointF)> &map) const;

private:
    std::vector<QPointF> m_knots;
    std::vector<double> m_slopes;
};

/// The curves of a slice by percentile: "P3", "P10", ...
using Percentiles = std::map<QString, Curve>;

/// Throws std::runtime_error when the table cannot be read or has no rows there.
Percentiles readPercentiles(const QDir &tables, const Slice &slice, const QString &sex);
