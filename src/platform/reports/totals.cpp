#include "platform/reports/totals.h"

namespace reports
{

namespace
{

/// Numbers and dates by their number, anything else by its letters.
bool isLess(const basic::Value &a, const basic::Value &b)
{
    const bool byLetter = a.as<QString>() && b.as<QString>();
    return byLetter ? a.text().localeAwareCompare(b.text()) < 0 : a.number() < b.number();
}

} // namespace

void Figures::add(const basic::Value &value)
{
    if (value.isBlank())
        return;
    if (const auto *money = value.as<basic::Currency>())
        money_ = money_ + *money;
    else
        allMoney_ = false;
    sum_ += value.number();
    if (count_ == 0 || isLess(value, least_))
        least_ = value;
    if (count_ == 0 || isLess(greatest_, value))
        greatest_ = value;
    ++count_;
}

basic::Value Figures::total(Total kind) const
{
    switch (kind) {
    case Total::None:
        break;
    case Total::Sum:
        return count_ > 0 && allMoney_ ? basic::Value(money_) : basic::Value(sum_);
    case Total::Mean:
        return count_ > 0 ? basic::Value(sum_ / static_cast<double>(count_)) : basic::Value();
    case Total::Count:
        return count_;
    case Total::Least:
        return least_;
    case Total::Greatest:
        return greatest_;
    }
    return {};
}

void Totals::add(std::size_t column, const basic::Value &value)
{
    for (std::vector<Figures> &level : levels_)
        level[column].add(value);
}

void Totals::restart(std::size_t level)
{
    for (; level < levels_.size(); ++level)
        for (Figures &figures : levels_[level])
            figures = {};
}

} // namespace reports
