#include "platform/basic/environment.h"

#include <QCoreApplication>
#include <QDir>

namespace basic
{

namespace
{
qint64 clockOffsetMs = 0;
}

QDateTime now()
{
    return QDateTime::currentDateTime().addMSecs(clockOffsetMs);
}

Date today()
{
    return Date(now().date());
}

Date time()
{
    return Date(now().time());
}

void setClock(const QDateTime &moment)
{
    clockOffsetMs = moment.isValid() ? QDateTime::currentDateTime().msecsTo(moment) : 0;
}

QString programFolder()
{
    const QString named = qEnvironmentVariable("SANIRELL_CARPETA");
    return named.isEmpty() ? QCoreApplication::applicationDirPath() : QDir(named).absolutePath();
}

QString programFile(const QString &relative)
{
    return QDir(programFolder()).filePath(QString(relative).replace(u'\\', u'/'));
}

} // namespace basic
