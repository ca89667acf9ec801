#include "platform/shell/shell.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include <map>
#include <memory>

namespace shell
{

namespace
{

/// Programs that serve as each tool, the most usual first.
const QStringList &candidates(Tool tool)
{
    static const std::map<Tool, QStringList> table{
        {Tool::NotePad,
         {"notepad.exe", "gedit", "gnome-text-editor", "kate", "kwrite", "mousepad", "pluma", "xed",
          "featherpad", "leafpad"}},
        {Tool::Calculator,
         {"calc.exe", "gnome-calculator", "kcalc", "mate-calc", "galculator", "qalculate-gtk", "xcalc"}},
        {Tool::FileExplorer,
         {"explorer.exe", "nautilus", "dolphin", "thunar", "nemo", "caja", "pcmanfm", "pcmanfm-qt"}},
    };
    return table.at(tool);
}

QString mailer()
{
    return QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
}

QString lockFile(const QString &name)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QString user = QDir::home().absolutePath();
    const QString key =
        QCoreApplication::applicationFilePath() + QLatin1Char('\n') + name + QLatin1Char('\n') + user;
    const QByteArray digest =
        QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QDir(folder).filePath(QStringLiteral("sanirell-%1.lock").arg(QString::fromLatin1(digest)));
}

} // namespace

bool openDocument(const QString &fileOrAddress)
{
    const QUrl address(fileOrAddress);
    if (address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https") ||
        address.scheme() == QLatin1String("mailto"))
        return QDesktopServices::openUrl(address);
    if (!QFileInfo::exists(fileOrAddress))
        return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(fileOrAddress).absoluteFilePath()));
}

bool start(Tool tool, const QString &argument)
{
    const QStringList arguments = argument.isEmpty() ? QStringList() : QStringList(argument);
    for (const QString &program : candidates(tool)) {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty())
            return QProcess::startDetached(path, arguments);
    }
    return false;
}

bool canMail()
{
    return !mailer().isEmpty();
}

bool mail(const QString &address, const QString &subject, const QString &attachment)
{
    QStringList arguments{QStringLiteral("--utf8"), QStringLiteral("--subject"), subject,
                          QStringLiteral("--attach"), attachment};
    // The program takes an address alone: what looks like one of its options is none.
    if (address.contains(QLatin1Char('@')) && !address.startsWith(QLatin1Char('-')))
        arguments.append(address);
    return canMail() && QProcess::startDetached(mailer(), arguments);
}

bool claimSingleInstance(const QString &name)
{
    static std::unique_ptr<QLockFile> lock;
    if (lock && lock->isLocked())
        return true;
    lock = std::make_unique<QLockFile>(lockFile(name));
    lock->setStaleLockTime(0); // a running process keeps it however long; that of a dead one is taken over
    if (lock->tryLock(0))
        return true;
    // Only a lock that somebody holds speaks of another instance: a folder that takes no file must not keep
    // the practice from working.
    return lock->error() != QLockFile::LockFailedError;
}

} // namespace shell
