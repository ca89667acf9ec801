#include "platform/dao/sqltext.h"

#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/dao/dialect/lexer.h"

namespace dao
{

QString quoted(const QString &text)
{
    QString doubled = text;
    doubled.replace(u'\'', QLatin1String("''"));
    return u'\'' + doubled + u'\'';
}

QString tableText(const QString &name)
{
    const bool starts = !name.isEmpty() && (name.front().isLetter() || name.front() == u'_');
    Lexer words(name);
    const bool plain = starts && [&] {
        const Token first = words.next();
        return first.kind == TokenKind::Name && first.word == Word::None && first.text.size() == name.size();
    }();
    return plain ? name : u'[' + name + u']';
}

QString cdate(basic::Date day)
{
    return QStringLiteral("cdate('%1')").arg(basic::dateText(day));
}

QString period(const QString &column, basic::Date from, basic::Date to)
{
    return QStringLiteral("%1 >= %2 and %1 <= %3").arg(column, cdate(from), cdate(to));
}

QString typedPattern(const QString &typed, Match where)
{
    QString pattern = where == Match::Anywhere ? QStringLiteral("*") : QString();
    for (const QChar c : typed.normalized(QString::NormalizationForm_C)) {
        const QString letters = basic::lettersMeant(c);
        const bool sign = QStringView(u"*?#[").contains(c);
        pattern += letters.size() > 1 || sign ? u'[' + letters + u']' : letters;
    }
    return pattern + u'*';
}

} // namespace dao
