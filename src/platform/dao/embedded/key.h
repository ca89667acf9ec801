#pragma once

#include <QByteArray>
#include <QString>

namespace dao
{

/// The password in a connect string: ";PWD=x", "pwd=x;" in any case and among other words; empty without one.
QString passwordOf(const QString &connect);
/// Whether a connect string names a password at all, be it the empty one.
bool namesPassword(const QString &connect);

/// The salt at the head of an enciphered file, or a fresh one.
QByteArray saltOf(const QString &path);
QByteArray freshSalt();
/// The salt is lost with the first page, and all other pages with it: a copy stays beside the file, in that
/// of the stations' queue.
void rememberSalt(const QString &path);
QByteArray rememberedSalt(const QString &path);
/// The key of a password and salt. Deriving it takes a quarter of a second by design; the process remembers
/// those it has derived.
QByteArray fileKey(const QString &password, const QByteArray &salt);
/// The same in the form in which the engine takes it.
QByteArray rawKey(const QString &password, const QByteArray &salt);

/// What can be told of a file without its key. Throws FileNotFound or NotADatabase, and FileDamaged for a
/// file that ends within a page, unless it is to be mended.
void requireDatabaseFile(const QString &path, bool maybeCut = false);
/// The file is a database without a password.
bool isPlainDatabase(const QString &path);

} // namespace dao
