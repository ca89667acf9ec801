#include "platform/dao/sqltext.h"

namespace dao
{

QString quoted(const QString &text)
{
    QString doubled = text;
    doubled.replace(u'\'', QLatin1String("''"));
    return u'\'' + doubled + u'\'';
}

} // namespace dao
