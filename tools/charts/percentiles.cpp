#include "percentiles.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace
{

double slopeBetween(QPointF a, QPointF b)
{
    return (b.y() - a.y()) / (b.x() - a.x());
}

/// The slope at `knot` of the parabola through it and its neighbours.
double slopeAt(QPointF before, QPointF knot, QPointF after)
{
    const double left = knot.x() - before.x();
    const double right = after.x() - knot.x();
    return (slopeBetween(before, knot) * right + slopeBetween(knot, after) * left) / (left + right);
}

/// The normal deviate of each percentile.
const std::map<QString, double> deviates{{"P3", -1.880794},  {"P10", -1.281552}, {"P15", -1.036433},
                                         {"P25", -0.674490}, {"P50", 0},         {"P75", 0.674490},
                                         {"P85", 1.036433},  {"P90", 1.281552},  {"P97", 1.880794}};

/// The value at a normal deviate, from the skewness L, the median M and the variation S of the reference.
/// Curves from the parameters are smoother than from the printed percentiles, which are rounded.
double valueAt(double deviate, double L, double M, double S)
{
    return L == 0 ? M * std::exp(S * deviate) : M * std::pow(1 + L * S * deviate, 1 / L);
}

QStringList cellsOf(const QByteArray &row)
{
    return QString::fromUtf8(row).trimmed().split(u',');
}

} // namespace

Curve::Curve(std::vector<QPointF> knots) : m_knots(std::move(knots)), m_slopes(m_knots.size())
{
    const auto end = m_knots.size() - 1;
    for (std::size_t i = 1; i < end; ++i)
        m_slopes[i] = slopeAt(m_knots[i - 1], m_knots[i], m_knots[i + 1]);
    m_slopes[0] = 2 * slopeBetween(m_knots[0], m_knots[1]) - m_slopes[1];
    m_slopes[end] = 2 * slopeBetween(m_knots[end - 1], m_knots[end]) - m_slopes[end - 1];
}

double Curve::at(double across) const
{
    const auto next = std::ranges::lower_bound(m_knots, across, {}, [](QPointF p) { return p.x(); });
    const auto i =
        std::clamp<std::size_t>(static_cast<std::size_t>(next - m_knots.begin()), 1, m_knots.size() - 1);
    const QPointF a = m_knots[i - 1];
    const QPointF b = m_knots[i];
    const double width = b.x() - a.x();
    const double t = (across - a.x()) / width;
    const double u = 1 - t;
    return u * u * (1 + 2 * t) * a.y() + t * t * (1 + 2 * u) * b.y() +
           t * u * width * (u * m_slopes[i - 1] - t * m_slopes[i]);
}

QPainterPath Curve::path(const std::function<QPointF(QPointF)> &map) const
{
    QPainterPath path(map(m_knots.front()));
    for (std::size_t i = 1; i < m_knots.size(); ++i) {
        const QPointF a = m_knots[i - 1];
        const QPointF b = m_knots[i];
        const double third = (b.x() - a.x()) / 3;
        path.cubicTo(map(a + QPointF(third, third * m_slopes[i - 1])),
                     map(b - QPointF(third, third * m_slopes[i])), map(b));
    }
    return path;
}

Percentiles readPercentiles(const QDir &tables, const Slice &slice, const QString &sex)
{
    const QString name = slice.table + u'_' + sex + ".csv";
    QFile file(tables.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read the table " + name.toStdString());

    const QStringList columns = cellsOf(file.readLine());
    const auto parameters = std::array{columns.indexOf("L"), columns.indexOf("M"), columns.indexOf("S")};
    std::map<QString, std::vector<QPointF>> knots;
    while (!file.atEnd()) {
        const QStringList cells = cellsOf(file.readLine());
        const double across = cells.front().toDouble();
        if (cells.size() != columns.size() || across < slice.from || across > slice.to)
            continue;
        const auto parameter = [&](std::size_t i) { return cells[parameters[i]].toDouble(); };
        for (const auto &[percentile, deviate] : deviates)
            knots[percentile].emplace_back(across,
                                           valueAt(deviate, parameter(0), parameter(1), parameter(2)));
    }
    Percentiles percentiles;
    for (auto &[percentile, points] : knots)
        if (points.size() > 1)
            percentiles.emplace(percentile, Curve(std::move(points)));
    if (percentiles.empty())
        throw std::runtime_error("no rows of the wanted ages in " + name.toStdString());
    return percentiles;
}
