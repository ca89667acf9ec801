#pragma once

#include <QTextListFormat>

#include <map>
#include <optional>
#include <vector>

namespace richtext
{

/// The lists that a file declares at its head, and the numbers by which its paragraphs call them.
class ListTables
{
public:
    static constexpr int levels = 9;

    void beginList() { lists_.emplace_back(); }
    void beginLevel();
    void setLevelNumber(int number); ///< how the level is marked
    void setListId(int id);
    void beginOverride() { overrideId_ = 0; }
    void setOverrideId(int id) { overrideId_ = id; }
    void setOverrideNumber(int number) { idOfNumber_[number] = overrideId_; }

    /// Of the paragraphs of the list with this number at this level: a plain bullet when it was not declared,
    /// and nothing where the file numbers without a mark, as it does with headings.
    std::optional<QTextListFormat::Style> style(int number, int level) const;

private:
    struct List {
        int id = 0;
        std::vector<std::optional<QTextListFormat::Style>> levels;
    };
    std::vector<List> lists_;
    std::map<int, int> idOfNumber_;
    int overrideId_ = 0;
};

} // namespace richtext
