#include "platform/dao/embedded/key.h"

#include "platform/dao/embedded/turn.h"
#include "platform/dao/error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QRandomGenerator>
#include <QStringList>

#include <openssl/evp.h>

#include <algorithm>
#include <array>

namespace dao
{

namespace
{

constexpr int saltSize = 16;
constexpr int keySize = 32;
constexpr int derivationRounds = 256000;
constexpr int pageSize = 4096;

QByteArray headOf(const QString &path, qint64 bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(bytes) : QByteArray();
}

/// Enciphered pages hold nearly all of the 256 bytes; texts, tables and programs do not.
bool looksEnciphered(const QByteArray &head)
{
    std::array<bool, 256> seen{};
    for (char c : head)
        seen[static_cast<unsigned char>(c)] = true;
    return head.size() < pageSize / 2 || std::count(seen.begin(), seen.end(), true) > 230;
}

bool isOtherKind(const QByteArray &head)
{
    static const QList<QByteArray> marks{"PK\x03\x04", "%PDF", "\x89PNG", "\xFF\xD8\xFF",
                                         "GIF8",       "Rar!", "MZ",      "\x1F\x8B"};
    return std::any_of(marks.begin(), marks.end(),
                       [&](const QByteArray &mark) { return head.startsWith(mark); });
}

QStringView passwordPart(QStringView connect)
{
    for (QStringView part : connect.split(u';')) {
        if (part.trimmed().startsWith(u"pwd=", Qt::CaseInsensitive))
            return part.trimmed();
    }
    return {};
}

} // namespace

QString passwordOf(const QString &connect)
{
    return passwordPart(connect).mid(4).toString();
}

bool namesPassword(const QString &connect)
{
    return !passwordPart(connect).isEmpty();
}

QByteArray saltOf(const QString &path)
{
    return headOf(path, saltSize);
}

QByteArray freshSalt()
{
    std::array<quint32, saltSize / sizeof(quint32)> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return {reinterpret_cast<const char *>(words.data()), saltSize};
}

void rememberSalt(const QString &path)
{
    const QByteArray salt = saltOf(path);
    if (salt == rememberedSalt(path))
        return;
    // Where it cannot be kept nothing but a later repair is the poorer.
    if (QFile file(queueFile(path)); file.open(QIODevice::ReadWrite))
        file.write(salt);
}

QByteArray rememberedSalt(const QString &path)
{
    return headOf(queueFile(path), saltSize);
}

QByteArray fileKey(const QString &password, const QByteArray &salt)
{
    static QMutex mutex;
    static QHash<QByteArray, QByteArray> derived;
    const QMutexLocker lock(&mutex);
    const QByteArray secret = password.toUtf8();
    QByteArray &known = derived[salt + secret];
    if (known.isEmpty()) {
        known = QByteArray(keySize, '\0');
        PKCS5_PBKDF2_HMAC(secret.constData(), static_cast<int>(secret.size()),
                          reinterpret_cast<const unsigned char *>(salt.constData()),
                          static_cast<int>(salt.size()), derivationRounds, EVP_sha512(), keySize,
                          reinterpret_cast<unsigned char *>(known.data()));
    }
    return known;
}

QByteArray rawKey(const QString &password, const QByteArray &salt)
{
    return "x'" + (fileKey(password, salt) + salt).toHex() + "'";
}

bool isPlainDatabase(const QString &path)
{
    return headOf(path, saltSize) == QByteArray("SQLite format 3\0", saltSize);
}

void requireDatabaseFile(const QString &path, bool maybeCut)
{
    const QFileInfo info(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!info.exists())
        throw Error(Error::FileNotFound, QStringLiteral("No se encontró el archivo '%1'.").arg(shown));
    if (!info.isFile())
        throw Error(Error::NotADatabase,
                    QStringLiteral("'%1' no es un archivo de base de datos.").arg(shown));
    const QByteArray head = headOf(path, pageSize);
    if (head.isEmpty() && info.size() > 0)
        throw Error(Error::ReadOnly, QStringLiteral("No hay permiso para leer el archivo '%1'.").arg(shown));
    const bool foreign = isOtherKind(head) || (!isPlainDatabase(path) && !looksEnciphered(head));
    if (head.size() < saltSize || (foreign && !maybeCut))
        throw Error(Error::NotADatabase,
                    QStringLiteral("El archivo '%1' no tiene el formato de una base de datos.").arg(shown));
    if (!maybeCut && (info.size() % 512 != 0 || info.size() < 512))
        throw Error(Error::FileDamaged,
                    QStringLiteral("El archivo '%1' está incompleto o dañado.").arg(shown));
}

} // namespace dao
