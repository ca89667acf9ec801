#include "platform/settings/settings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace settings
{

namespace
{

QString title = QStringLiteral("Sanirell!");

/// One file a user and workstation; SANIRELL_AJUSTES names another folder for it.
QString storeFile()
{
    QString folder = qEnvironmentVariable("SANIRELL_AJUSTES");
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/sanirell"_s;
    return QDir(folder).filePath(QStringLiteral("ajustes.ini"));
}

QString path(const QString &application, const QString &section, const QString &key)
{
    return application + u'/' + section + u'/' + key;
}

} // namespace

QString getSetting(const QString &application, const QString &section, const QString &key)
{
    return QSettings(storeFile(), QSettings::IniFormat).value(path(application, section, key)).toString();
}

void saveSetting(const QString &application, const QString &section, const QString &key, const QString &value)
{
    QSettings store(storeFile(), QSettings::IniFormat);
    store.setValue(path(application, section, key), value);
    store.sync();
    QFile::setPermissions(store.fileName(), QFile::ReadOwner | QFile::WriteOwner);
}

QString applicationTitle()
{
    return title;
}

void setApplicationTitle(const QString &newTitle)
{
    title = newTitle;
}

QString getSetting(const QString &section, const QString &key)
{
    return getSetting(title, section, key);
}

void saveSetting(const QString &section, const QString &key, const QString &value)
{
    saveSetting(title, section, key, value);
}

} // namespace settings
