#pragma once

#include "names.h"

#include <map>
#include <vector>

namespace practica
{

/// The measures of a child that grows along its own channel of the reference tables, with the noise of a
/// consulting room's scales.
class Growth
{
public:
    /// Reads the tables of the data folder; throws std::runtime_error.
    explicit Growth(const QString &dataFolder);

    /// Where a child grows, in standard deviations from the median.
    struct Channel {
        double weight, height, head;
    };
    static Channel channel(Dice &dice);

    struct Measures {
        double weight, height, head; ///< grams, centimetres, centimetres; 0 where there is no reference
    };
    Measures at(int days, bool boy, const Channel &channel, Dice &dice) const;

private:
    struct Row {
        double days, l, m, s;
    };
    using Table = std::vector<Row>;
    void read(const QString &dataFolder, const QString &name, Table &boys, Table &girls, double fromDays);
    static double value(const Table &table, int days, double deviations);

    Table weight_[2], height_[2], head_[2]; // girls, boys
};

} // namespace practica
