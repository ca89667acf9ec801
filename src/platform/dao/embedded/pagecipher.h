#pragma once

#include <QByteArray>

#include <optional>

namespace dao
{

/// One page of an enciphered file at a time, beside the engine: for a file whose first page is lost, which
/// the engine does not open at all. A page is enciphered under the file's key with a start value of its own,
/// and signed together with its number.
class PageCipher
{
public:
    static constexpr int pageSize = 4096;
    static constexpr int reserved = 80; ///< start value and signature, at the end of each page
    static constexpr int saltSize = 16; ///< in the clear at the head of the first page

    PageCipher(QByteArray key, QByteArray salt);

    /// The page's contents, or nothing when it is not whole. Pages count from 1; of the first one the salt's
    /// place stays as it is.
    std::optional<QByteArray> open(const QByteArray &page, quint32 number) const;
    QByteArray close(const QByteArray &contents, quint32 number) const;

private:
    QByteArray signature(const QByteArray &page, quint32 number) const;

    QByteArray key_;
    QByteArray salt_;
    QByteArray signatureKey_;
};

} // namespace dao
