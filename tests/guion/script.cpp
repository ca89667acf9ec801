#include "guion/script.h"

namespace guion
{

namespace
{

/// Index behind the quoted text that starts at `start`.
qsizetype endOfQuote(const QString &line, qsizetype start)
{
    for (qsizetype i = start + 1; i < line.size(); ++i) {
        if (line[i] == u'\\')
            ++i;
        else if (line[i] == u'"')
            return i + 1;
    }
    throw Failure(QStringLiteral("a quoted text has no end"));
}

} // namespace

const Word &Step::at(std::size_t place) const
{
    if (place >= words.size())
        throw Failure(QStringLiteral("the step lacks its word number %1").arg(place));
    return words[place];
}

QString unquoted(QStringView quoted)
{
    QString text;
    for (qsizetype i = 1; i + 1 < quoted.size(); ++i) {
        const QChar next = quoted[i + 1];
        const bool escape = quoted[i] == u'\\' && (next == u'n' || next == u'"' || next == u'\\');
        if (!escape) {
            text += quoted[i];
            continue;
        }
        ++i;
        text += next == u'n' ? QChar(u'\n') : next;
    }
    return text;
}

std::vector<Word> split(const QString &line)
{
    std::vector<Word> words;
    if (line.startsWith(u'#'))
        return words;
    qsizetype i = 0;
    while (i < line.size()) {
        if (line[i].isSpace()) {
            ++i;
            continue;
        }
        const qsizetype start = i;
        while (i < line.size() && !line[i].isSpace())
            i = line[i] == u'"' ? endOfQuote(line, i) : i + 1;
        const QString raw = line.mid(start, i - start);
        const bool quoted = raw.startsWith(u'"') && endOfQuote(raw, 0) == raw.size();
        words.push_back({raw, quoted ? unquoted(raw) : raw, quoted});
    }
    return words;
}

std::vector<Step> parse(const QString &text)
{
    std::vector<Step> steps;
    int number = 0;
    for (const QString &line : text.split(u'\n')) {
        ++number;
        try {
            std::vector<Word> words = split(line);
            if (!words.empty())
                steps.push_back({number, line.trimmed(), std::move(words)});
        } catch (const Failure &failure) {
            throw Failure(QStringLiteral("%1: %2").arg(number).arg(failure.text()));
        }
    }
    return steps;
}

Address parseAddress(const QString &raw)
{
    Address address;
    qsizetype i = 0;
    while (i <= raw.size()) {
        Address::Part part;
        if (i < raw.size() && raw[i] == u'"') {
            const qsizetype end = endOfQuote(raw, i);
            part.name = unquoted(QStringView(raw).mid(i, end - i));
            part.isCaption = true;
            i = end;
        } else {
            qsizetype end = i;
            int depth = 0;
            while (end < raw.size() && (depth > 0 || raw[end] != u'.')) {
                depth += raw[end] == u'(' ? 1 : raw[end] == u')' ? -1 : 0;
                ++end;
            }
            part.name = raw.mid(i, end - i);
            if (const qsizetype hash = part.name.indexOf(u'#'); hash > 0) {
                part.tag = part.name.mid(hash + 1);
                part.name.truncate(hash);
            }
            i = end;
        }
        if (part.name.isEmpty() || (i < raw.size() && raw[i] != u'.'))
            throw Failure(QStringLiteral("%1 names no window or control").arg(raw));
        address.parts.push_back(part);
        ++i;
    }
    return address;
}

Property parseProperty(const QString &text)
{
    Property property{text, {}};
    const qsizetype open = text.indexOf(u'(');
    if (open < 0 || !text.endsWith(u')'))
        return property;
    property.name = text.left(open);
    for (const QString &argument : text.mid(open + 1).chopped(1).split(u',')) {
        bool number = false;
        property.arguments.push_back(argument.trimmed().toInt(&number));
        if (!number)
            throw Failure(QStringLiteral("%1: %2 is no number").arg(text, argument));
    }
    return property;
}

} // namespace guion
