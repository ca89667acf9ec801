#include "platform/dao/database.h"

#include "platform/basic/files.h"
#include "platform/dao/embedded/embeddedengine.h"
#include "platform/dao/embedded/firstpage.h"
#include "platform/dao/embedded/key.h"
#include "platform/dao/embedded/rescue.h"
#include "platform/dao/embedded/watch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Work on a closed file as a whole. Both operations write a new file under another name first, so that a
/// failure midway leaves what there was.
namespace dao
{

namespace
{

QString quoted(QByteArray text)
{
    return u'\'' + QString::fromUtf8(text.replace('\'', "''")) + u'\'';
}

QString journalOf(const QString &path)
{
    return path + QStringLiteral("-journal");
}

/// A file that is being written; gone again unless it was kept.
class Unfinished
{
public:
    explicit Unfinished(QString path) : path_(std::move(path)) { clear(); }
    ~Unfinished() { clear(); }
    Unfinished(const Unfinished &) = delete;
    Unfinished &operator=(const Unfinished &) = delete;
    const QString &path() const { return path_; }
    void keepAs(const QString &name) const
    {
        // A journal that was left of another file of this name must not be played back into this one.
        basic::removeFile(journalOf(name));
        basic::replaceFile(path_, name);
    }

private:
    void clear() const
    {
        for (const QString &file : {path_, journalOf(path_), queueFile(path_)})
            QFile::remove(file);
    }

    QString path_;
};

/// What a damaged file may be refused with.
constexpr std::initializer_list<int> damages = {Error::FileDamaged, Error::WrongPassword, Error::NotADatabase,
                                                Error::NotATable, Error::Engine};

/// What a station that died has left half written goes, where the file still opens: else it could not be
/// read.
void takeBackUnfinished(const QString &path, const QString &password)
{
    basic::ignoring(damages, [&] { openEmbedded(path, password, {}); });
}

/// The pages that describe the tables can be read.
bool readsCatalogue(const QString &path, const QString &password)
{
    return basic::ignoring(damages, [&] {
        openEmbedded(path, password, {.as = {.readOnly = true}, .salvage = true})->readCatalogue();
    });
}

} // namespace

bool compactDatabase(const QString &source, const QString &destination, const QString &destinationLocale,
                     const QString &sourceConnect, const FileProgress &progress)
{
    if (QFile::exists(destination))
        throw Error(Error::FileExists,
                    QStringLiteral("El archivo '%1' ya existe.").arg(QDir::toNativeSeparators(destination)));
    const QString password = passwordOf(namesPassword(destinationLocale) ? destinationLocale : sourceConnect);
    requireDatabaseFile(source);
    const Alone alone(source);
    const Unfinished fresh(destination + QStringLiteral(".tmp"));
    Watch watch(progress, source, fresh.path());
    {
        const auto engine = openEmbedded(source, passwordOf(sourceConnect), {});
        const QByteArray key = password.isEmpty() ? QByteArray() : rawKey(password, freshSalt());
        watch.follow(*engine);
        // The connection may not make files, but fills an empty one.
        if (QFile empty(fresh.path()); !empty.open(QIODevice::WriteOnly))
            throw Error(Error::ReadOnly, QStringLiteral("No se pudo crear el archivo '%1'.")
                                             .arg(QDir::toNativeSeparators(destination)));
        const QString attach =
            QStringLiteral("ATTACH %1 AS destino KEY %2")
                .arg(quoted(QFile::encodeName(fresh.path())),
                     key.isEmpty() ? QStringLiteral("''") : u'"' + QString::fromLatin1(key) + u'"');
        engine->run(attach.toUtf8());
        // A file that is nothing until it is whole needs no journal, and reaches the disk before it gets its
        // name.
        engine->run("PRAGMA destino.journal_mode = OFF; PRAGMA destino.synchronous = OFF");
        try {
            engine->run("BEGIN; SELECT sqlcipher_export('destino'); COMMIT; DETACH destino");
        } catch (const Error &) {
            if (watch.stopped())
                return false;
            throw;
        }
    }
    QFile::setPermissions(fresh.path(), QFile::permissions(source)); // as the practice shares it
    fresh.keepAs(destination);
    return true;
}

bool repairDatabase(const QString &path, const QString &connect, const FileProgress &progress)
{
    const QString password = passwordOf(connect);
    const Alone alone(path);
    const Unfinished fresh(path + QStringLiteral(".tmp"));
    const Unfinished headed(path + QStringLiteral(".cabeza"));
    takeBackUnfinished(path, password);
    const bool plain = isPlainDatabase(path);
    const bool catalogued = readsCatalogue(path, password);
    if (!catalogued && !plain)
        copyWithNewFirstPage(path, headed.path(), password);
    Watch watch(progress, path, fresh.path());
    if (!rescueRows(catalogued || plain ? path : headed.path(), fresh.path(), plain ? QString() : password,
                    watch))
        return false;
    QString aside = path + QStringLiteral(".dañada");
    for (int i = 2; QFile::exists(aside); ++i)
        aside = path + QStringLiteral(".dañada%1").arg(i);
    replaceDatabase(path, fresh.path(), aside);
    return true;
}

void replaceDatabase(const QString &path, const QString &fresh, const QString &aside)
{
    basic::removeFile(journalOf(aside));
    if (QFile::exists(path)) {
        QFile::setPermissions(fresh, QFile::permissions(path)); // as the practice shares it
        basic::keepUnderAnotherName(path, aside);
    }
    // The journal goes before the file is replaced: it must never be played back into the new one.
    if (QFileInfo(journalOf(path)).size() > 0)
        basic::replaceFile(journalOf(path), journalOf(aside));
    else
        basic::removeFile(journalOf(path));
    basic::replaceFile(fresh, path);
}

} // namespace dao
