#pragma once

#include "platform/basic/value.h"

#include <vector>

namespace reports
{

/// What a column tells below its rows: nothing, or one figure of them.
enum class Total { None, Sum, Mean, Count, Least, Greatest };

/// The figures of one column over the rows seen so far. Blank values do not count; money is added exactly.
class Figures
{
public:
    void add(const basic::Value &value);
    basic::Value total(Total kind) const; ///< empty without a value, except Count and Sum, which are 0

private:
    qint64 count_ = 0;
    double sum_ = 0;
    basic::Currency money_;
    bool allMoney_ = true;
    basic::Value least_, greatest_;
};

/// The figures of every totalled column at each level: 0 the whole report, then the groups from the
/// outermost. A value: a page remembers those it began with.
class Totals
{
public:
    Totals() = default;
    Totals(std::size_t levels, std::size_t columns) : levels_(levels, std::vector<Figures>(columns)) {}

    void add(std::size_t column, const basic::Value &value);
    void restart(std::size_t level); ///< a group of this level begins, and with it all within
    const Figures &at(std::size_t level, std::size_t column) const { return levels_[level][column]; }

private:
    std::vector<std::vector<Figures>> levels_;
};

} // namespace reports
