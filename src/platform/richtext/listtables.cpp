#include "platform/richtext/listtables.h"

#include "platform/richtext/bullets.h"

#include <algorithm>

namespace richtext
{

void ListTables::beginLevel()
{
    if (!lists_.empty() && lists_.back().levels.size() < levels)
        lists_.back().levels.push_back(QTextListFormat::ListDisc);
}

void ListTables::setLevelNumber(int number)
{
    constexpr int withoutMark = 255;
    if (lists_.empty() || lists_.back().levels.empty())
        return;
    auto &level = lists_.back().levels.back();
    const auto bullet = std::ranges::find(bullets, number, &Bullet::number);
    if (bullet != bullets.end())
        level = bullet->style;
    else if (number == withoutMark)
        level.reset();
    else
        level = QTextListFormat::ListDecimal; // ordinals, words and the like
}

void ListTables::setListId(int id)
{
    if (!lists_.empty())
        lists_.back().id = id;
}

std::optional<QTextListFormat::Style> ListTables::style(int number, int level) const
{
    const auto id = idOfNumber_.find(number);
    if (id == idOfNumber_.end())
        return QTextListFormat::ListDisc;
    const auto list = std::ranges::find(lists_, id->second, &List::id);
    if (list == lists_.end() || level >= static_cast<int>(list->levels.size()))
        return QTextListFormat::ListDisc;
    return list->levels[static_cast<std::size_t>(level)];
}

} // namespace richtext
