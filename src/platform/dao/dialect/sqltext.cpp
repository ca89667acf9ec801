#include "platform/dao/sqltext.h"

#include "platform/basic/runtime.h"

namespace dao
{

QString quoted(const QString &text)
{
    QString doubled = text;
    doubled.replace(u'\'', QLatin1String("''"));
    return u'\'' + doubled + u'\'';
}

QString cdate(basic::Date day)
{
    return QStringLiteral("cdate('%1')").arg(basic::dateText(day));
}

QString period(const QString &column, basic::Date from, basic::Date to)
{
    return QStringLiteral("%1 >= %2 and %1 <= %3").arg(column, cdate(from), cdate(to));
}

} // namespace dao
