#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

/// The text of a guion: lines of words. See docs for the steps.
namespace guion
{

/// One word of a step. `raw` is as it stands in the file; `text` is without the quotes when the whole word
/// is quoted.
struct Word {
    QString raw;
    QString text;
    bool quoted = false;
};

struct Step {
    int line = 0;
    QString source; ///< the line as written
    std::vector<Word> words;

    const QString &name() const { return words.front().text; }
    /// The word at a place after the step's name, from 1 on. Throws Failure when the step is shorter.
    const Word &at(std::size_t place) const;
    std::size_t size() const { return words.size(); }
};

/// What went wrong with a step, for the person who reads the report.
class Failure : public std::exception
{
public:
    explicit Failure(QString text, QString expected = {}, QString actual = {})
        : text_(std::move(text)), expected_(std::move(expected)), actual_(std::move(actual))
    {
    }
    const QString &text() const { return text_; }
    const QString &expected() const { return expected_; }
    const QString &actual() const { return actual_; }

private:
    QString text_, expected_, actual_;
};

/// What a step acts on is not there (yet).
class Missing : public Failure
{
public:
    using Failure::Failure;
};

/// Splits a line; empty for a blank line or a comment. Throws Failure on a quote without end.
std::vector<Word> split(const QString &line);
/// The steps of a file's text. Throws Failure that names the line.
std::vector<Step> parse(const QString &text);

/// A quoted text without its quotes, with \" \\ and \n resolved.
QString unquoted(QStringView quoted);

/// Where a step acts or looks: "panTurnos#12.Text3(4)", "panSintomas.\"Aceptar\"", "List1.List(2)".
struct Address {
    struct Part {
        QString name;           ///< with the index of an array: "Text3(4)"
        bool isCaption = false; ///< given in quotes
        QString tag;            ///< after "#"
        bool operator==(const Part &) const = default;
    };
    std::vector<Part> parts;
};
Address parseAddress(const QString &raw);

/// A property with its arguments: "Cell(0,1)".
struct Property {
    QString name;
    std::vector<int> arguments;
};
Property parseProperty(const QString &text);

} // namespace guion
