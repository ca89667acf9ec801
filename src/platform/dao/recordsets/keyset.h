#pragma once

#include <QtGlobal>

#include <limits>
#include <span>
#include <vector>

namespace dao
{

/// The keys of a query's rows in its order; a row of a join has one key a table.
class Keyset
{
public:
    /// Stands for the key of a table that an outer join left without a row.
    static constexpr qint64 none = std::numeric_limits<qint64>::min();

    explicit Keyset(size_t width = 1) : width_(width) {}

    size_t width() const { return width_; }
    qint64 count() const { return static_cast<qint64>(keys_.size() / width_); }
    std::span<const qint64> at(qint64 position) const
    {
        return {keys_.data() + static_cast<size_t>(position) * width_, width_};
    }
    void append(std::span<const qint64> key);
    void remove(qint64 position);
    void clear();
    void reserve(qint64 rows) { keys_.reserve(static_cast<size_t>(rows) * width_); }
    qint64 find(std::span<const qint64> key) const; ///< -1 when it is not there
    /// One key a row, each greater than the one before.
    bool ascending() const { return ascending_; }

private:
    void buildLookup() const;

    size_t width_;
    std::vector<qint64> keys_;
    bool ascending_ = true;
    mutable std::vector<quint32> lookup_; ///< positions in the order of their keys
};

} // namespace dao
