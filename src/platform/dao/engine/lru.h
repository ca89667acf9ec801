#pragma once

#include <QHash>
#include <QString>

#include <list>
#include <utility>

namespace dao
{

/// The values used last, by a text; the one unused longest goes when there is no more room.
template <class Value>
class LruCache
{
public:
    explicit LruCache(qsizetype room) : room_(room) {}

    Value *find(const QString &key)
    {
        const auto it = places_.constFind(key);
        if (it == places_.cend())
            return nullptr;
        entries_.splice(entries_.begin(), entries_, *it);
        return &entries_.front().second;
    }

    Value &insert(const QString &key, Value value)
    {
        remove(key);
        if (places_.size() >= room_)
            remove(QString(entries_.back().first));
        entries_.emplace_front(key, std::move(value));
        places_.insert(key, entries_.begin());
        return entries_.front().second;
    }

    void remove(const QString &key)
    {
        const auto it = places_.constFind(key);
        if (it == places_.cend())
            return;
        entries_.erase(*it);
        places_.erase(it);
    }

    void clear()
    {
        places_.clear();
        entries_.clear();
    }

private:
    using Entries = std::list<std::pair<QString, Value>>;
    qsizetype room_;
    Entries entries_;
    QHash<QString, typename Entries::iterator> places_;
};

} // namespace dao
