#include "platform/cipher/cipher.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <openssl/evp.h>
#include <openssl/rand.h>

#include <memory>
#include <stdexcept>

namespace cipher
{

namespace
{

constexpr int nonceSize = 12;
constexpr int tagSize = 16;

using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

unsigned char *bytes(QByteArray &data)
{
    return reinterpret_cast<unsigned char *>(data.data());
}

const unsigned char *bytes(const QByteArray &data)
{
    return reinterpret_cast<const unsigned char *>(data.constData());
}

QByteArray keyOf(const QString &key)
{
    return QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256);
}

void require(int outcome)
{
    if (outcome != 1)
        throw std::runtime_error("the cipher is not available");
}

} // namespace

QString encryptString(const QString &key, const QString &text)
{
    const QByteArray plain = text.toUtf8(), secret = keyOf(key);
    QByteArray nonce(nonceSize, '\0'), tag(tagSize, '\0'), hidden(plain.size(), '\0');
    const Context context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    int written = 0;
    require(RAND_bytes(bytes(nonce), nonceSize));
    require(EVP_EncryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, bytes(secret), bytes(nonce)));
    require(EVP_EncryptUpdate(context.get(), bytes(hidden), &written, bytes(plain),
                              static_cast<int>(plain.size())));
    require(EVP_EncryptFinal_ex(context.get(), bytes(hidden) + written, &written));
    require(EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, tagSize, bytes(tag)));
    return QString::fromLatin1((nonce + tag + hidden).toBase64());
}

std::optional<QString> decryptString(const QString &key, const QString &enciphered)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(enciphered.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray whole = decoded ? decoded.decoded : QByteArray(), secret = keyOf(key);
    if (whole.size() < nonceSize + tagSize)
        return {};
    const QByteArray nonce = whole.first(nonceSize), hidden = whole.sliced(nonceSize + tagSize);
    QByteArray tag = whole.sliced(nonceSize, tagSize), plain(hidden.size(), '\0');
    const Context context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    int written = 0;
    require(EVP_DecryptInit_ex(context.get(), EVP_aes_256_gcm(), nullptr, bytes(secret), bytes(nonce)));
    require(EVP_DecryptUpdate(context.get(), bytes(plain), &written, bytes(hidden),
                              static_cast<int>(hidden.size())));
    require(EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, tagSize, bytes(tag)));
    if (EVP_DecryptFinal_ex(context.get(), bytes(plain) + written, &written) != 1)
        return {};
    return QString::fromUtf8(plain);
}

} // namespace cipher
