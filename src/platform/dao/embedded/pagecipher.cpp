#include "platform/dao/embedded/pagecipher.h"

#include "platform/dao/error.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>
#include <memory>
#include <utility>

namespace dao
{

namespace
{

constexpr int startSize = 16;
constexpr int signatureSize = 64;
constexpr int bodySize = PageCipher::pageSize - PageCipher::reserved;

int bodyOffset(quint32 number)
{
    return number == 1 ? PageCipher::saltSize : 0;
}

unsigned char *bytes(QByteArray &array)
{
    return reinterpret_cast<unsigned char *>(array.data());
}

const unsigned char *bytes(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

/// Enciphers or deciphers the body of a page in place.
void turn(QByteArray &page, quint32 number, const QByteArray &key, bool enciphering)
{
    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(EVP_CIPHER_CTX_new(),
                                                                                  EVP_CIPHER_CTX_free);
    const QByteArray from = page;
    const int offset = bodyOffset(number);
    int written = 0;
    const bool done = context &&
                      EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, bytes(key),
                                        bytes(from) + bodySize, enciphering ? 1 : 0) == 1 &&
                      EVP_CIPHER_CTX_set_padding(context.get(), 0) == 1 &&
                      EVP_CipherUpdate(context.get(), bytes(page) + offset, &written, bytes(from) + offset,
                                       bodySize - offset) == 1;
    if (!done)
        throw Error(Error::Engine, QStringLiteral("No se pudo descifrar una página de la base de datos."));
}

} // namespace

PageCipher::PageCipher(QByteArray key, QByteArray salt)
    : key_(std::move(key)), salt_(std::move(salt)), signatureKey_(key_.size(), '\0')
{
    constexpr char mask = 0x3a;
    constexpr int rounds = 2;
    QByteArray masked = salt_;
    for (char &c : masked)
        c = static_cast<char>(c ^ mask);
    PKCS5_PBKDF2_HMAC(key_.constData(), static_cast<int>(key_.size()), bytes(std::as_const(masked)),
                      static_cast<int>(masked.size()), rounds, EVP_sha512(),
                      static_cast<int>(signatureKey_.size()), bytes(signatureKey_));
}

QByteArray PageCipher::signature(const QByteArray &page, quint32 number) const
{
    const int offset = bodyOffset(number);
    QByteArray text = page.mid(offset, bodySize + startSize - offset);
    const quint32 numberInFile = qToLittleEndian(number);
    text.append(reinterpret_cast<const char *>(&numberInFile), sizeof numberInFile);
    QByteArray made(signatureSize, '\0');
    HMAC(EVP_sha512(), signatureKey_.constData(), static_cast<int>(signatureKey_.size()),
         bytes(std::as_const(text)), static_cast<size_t>(text.size()), bytes(made), nullptr);
    return made;
}

std::optional<QByteArray> PageCipher::open(const QByteArray &page, quint32 number) const
{
    if (page.size() != pageSize || page.last(signatureSize) != signature(page, number))
        return {};
    QByteArray contents = page;
    turn(contents, number, key_, false);
    return contents;
}

QByteArray PageCipher::close(const QByteArray &contents, quint32 number) const
{
    QByteArray page = contents;
    std::array<quint32, startSize / sizeof(quint32)> start{};
    QRandomGenerator::system()->fillRange(start.data(), start.size());
    page.replace(bodySize, startSize, reinterpret_cast<const char *>(start.data()), startSize);
    if (number == 1)
        page.replace(0, saltSize, salt_);
    turn(page, number, key_, true);
    page.replace(bodySize + startSize, signatureSize, signature(page, number));
    return page;
}

} // namespace dao
