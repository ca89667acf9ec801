#include "platform/dao/recordsets/keyset.h"

#include <algorithm>
#include <numeric>

namespace dao
{

void Keyset::append(std::span<const qint64> key)
{
    lookup_.clear();
    if (width_ == 1) {
        ascending_ = ascending_ && (keys_.empty() || keys_.back() < key[0]);
        keys_.push_back(key[0]);
        return;
    }
    ascending_ = false;
    keys_.insert(keys_.end(), key.begin(), key.end());
}

void Keyset::remove(qint64 position)
{
    const auto first = keys_.begin() + position * static_cast<qint64>(width_);
    keys_.erase(first, first + static_cast<qint64>(width_));
    lookup_.clear();
}

void Keyset::clear()
{
    keys_.clear();
    lookup_.clear();
    ascending_ = width_ == 1;
}

qint64 Keyset::find(std::span<const qint64> key) const
{
    if (key.size() != width_)
        return -1;
    if (ascending_ && width_ == 1) {
        const auto it = std::lower_bound(keys_.begin(), keys_.end(), key[0]);
        return it != keys_.end() && *it == key[0] ? it - keys_.begin() : -1;
    }
    buildLookup();
    const auto less = [&](quint32 position, std::span<const qint64> wanted) {
        const auto own = at(position);
        return std::lexicographical_compare(own.begin(), own.end(), wanted.begin(), wanted.end());
    };
    const auto it = std::lower_bound(lookup_.begin(), lookup_.end(), key, less);
    return it != lookup_.end() && std::ranges::equal(at(*it), key) ? *it : -1;
}

void Keyset::buildLookup() const
{
    if (lookup_.size() * width_ == keys_.size())
        return;
    lookup_.resize(static_cast<size_t>(count()));
    std::iota(lookup_.begin(), lookup_.end(), 0u);
    std::sort(lookup_.begin(), lookup_.end(), [&](quint32 a, quint32 b) {
        const auto left = at(a);
        const auto right = at(b);
        return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end());
    });
}

} // namespace dao
