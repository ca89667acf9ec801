#include "platform/dao/embedded/firstpage.h"

#include "platform/dao/embedded/key.h"
#include "platform/dao/embedded/pagecipher.h"
#include "platform/dao/error.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace dao
{

namespace
{

constexpr int fileHeader = 100;

enum PageKind : quint8 { IndexInterior = 2, TableInterior = 5, IndexLeaf = 10, TableLeaf = 13 };

bool isOfTable(quint8 kind)
{
    return kind == TableInterior || kind == TableLeaf;
}

bool isOfIndex(quint8 kind)
{
    return kind == IndexInterior || kind == IndexLeaf;
}

/// Reads numbers out of a page; beyond its end it reads zeros.
class PageReader
{
public:
    PageReader(const QByteArray &page, qsizetype at) : page_(page), at_(at) {}

    quint64 bigEndian(int size)
    {
        quint64 number = 0;
        for (int i = 0; i < size; ++i)
            number = number << 8 | next();
        return number;
    }
    /// Seven bits a byte, the high bit set in all but the last of them; of nine the last counts whole.
    quint64 varint()
    {
        quint64 number = 0;
        for (int i = 0; i < 8; ++i) {
            const quint8 byte = next();
            number = number << 7 | (byte & 0x7Fu);
            if (byte < 0x80)
                return number;
        }
        return number << 8 | next();
    }
    QByteArray bytes(quint64 size)
    {
        const auto length = static_cast<qsizetype>(std::min<quint64>(size, PageCipher::pageSize));
        const QByteArray read = page_.mid(at_, length);
        at_ += length;
        return read;
    }
    qsizetype at() const { return at_; }

private:
    quint8 next() { return at_ < page_.size() ? static_cast<quint8>(page_[at_++]) : quint8(0); }

    const QByteArray &page_;
    qsizetype at_;
};

quint64 storedSize(quint64 serialType)
{
    constexpr std::array<quint64, 10> numbers{0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
    if (serialType < numbers.size())
        return numbers[serialType];
    return serialType < 12 ? 0 : (serialType - 12) / 2;
}

/// A row of the engine's own catalogue: what kind of thing, and the page where it begins.
struct CatalogueRow {
    quint64 key = 0;
    bool table = false;
    quint64 root = 0;
};

std::optional<CatalogueRow> catalogueRow(const QByteArray &page, qsizetype cell)
{
    PageReader reader(page, cell);
    reader.varint(); // size of the row
    CatalogueRow row{.key = reader.varint()};
    const qsizetype head = reader.at();
    const quint64 headSize = reader.varint();
    std::array<quint64, 5> types{}; // kind, name, table, first page, text
    for (quint64 &type : types)
        type = reader.varint();
    if (reader.at() != head + static_cast<qsizetype>(headSize))
        return {};
    const QByteArray kind = reader.bytes(storedSize(types[0]));
    if (kind != "table" && kind != "index")
        return {};
    row.table = kind == "table";
    reader.bytes(storedSize(types[1]));
    reader.bytes(storedSize(types[2]));
    row.root =
        types[3] == 9 ? 1 : reader.bigEndian(static_cast<int>(std::min<quint64>(storedSize(types[3]), 8)));
    return row;
}

/// A page that holds nothing but rows of the catalogue.
struct CataloguePage {
    quint32 number = 0;
    std::vector<CatalogueRow> rows;
    int sound = 0; ///< rows whose things are where they say

    quint64 first() const { return rows.front().key; }
    quint64 last() const { return rows.back().key; }
};

std::optional<CataloguePage> cataloguePage(const QByteArray &contents, quint32 number)
{
    constexpr int leafHeader = 8;
    CataloguePage page;
    page.number = number;
    const auto cells = static_cast<int>(PageReader(contents, 3).bigEndian(2));
    for (int i = 0; i < cells; ++i) {
        const auto at = static_cast<qsizetype>(PageReader(contents, leafHeader + 2 * i).bigEndian(2));
        const std::optional<CatalogueRow> row = catalogueRow(contents, at);
        if (!row || (!page.rows.empty() && row->key <= page.last()))
            return {};
        page.rows.push_back(*row);
    }
    return page.rows.empty() ? std::nullopt : std::optional(std::move(page));
}

/// What all pages of a file say about themselves.
struct Survey {
    std::vector<quint8> kinds; ///< by number; 0 of one that is not whole
    std::vector<CataloguePage> catalogue;
};

Survey surveyOf(QFile &file, const PageCipher &cipher)
{
    Survey survey;
    survey.kinds.resize(2);
    file.seek(PageCipher::pageSize);
    while (true) {
        const QByteArray page = file.read(PageCipher::pageSize);
        if (page.isEmpty())
            break;
        const auto number = static_cast<quint32>(survey.kinds.size());
        const std::optional<QByteArray> contents = cipher.open(page, number);
        survey.kinds.push_back(contents ? static_cast<quint8>(contents->front()) : quint8(0));
        if (survey.kinds.back() != TableLeaf)
            continue;
        if (auto found = cataloguePage(*contents, number))
            survey.catalogue.push_back(std::move(*found));
    }
    for (CataloguePage &page : survey.catalogue) {
        page.sound = static_cast<int>(std::ranges::count_if(page.rows, [&](const CatalogueRow &row) {
            const quint8 kind = row.root < survey.kinds.size() ? survey.kinds[row.root] : quint8(0);
            return row.table ? isOfTable(kind) : isOfIndex(kind);
        }));
    }
    return survey;
}

/// The catalogue's pages in the order of their rows. Free pages still hold what they held: of pages that hold
/// the same rows the one that agrees best with the file counts.
std::vector<CataloguePage> presentPages(std::vector<CataloguePage> found)
{
    std::ranges::stable_sort(found, std::ranges::greater(), &CataloguePage::sound);
    std::vector<CataloguePage> present;
    for (CataloguePage &page : found) {
        const bool taken = std::ranges::any_of(present, [&](const CataloguePage &other) {
            return page.first() <= other.last() && other.first() <= page.last();
        });
        if (!taken && page.sound > 0)
            present.push_back(std::move(page));
    }
    std::ranges::sort(present, {}, &CataloguePage::first);
    return present;
}

void put(QByteArray &page, qsizetype at, quint64 number, int size)
{
    for (int i = size - 1; i >= 0; --i, number >>= 8)
        page[at + i] = static_cast<char>(number & 0xFF);
}

QByteArray varint(quint64 number)
{
    QByteArray bytes(1, static_cast<char>(number & 0x7F));
    while (number >>= 7)
        bytes.prepend(static_cast<char>((number & 0x7F) | 0x80));
    return bytes;
}

/// The header of the file, and the root of the catalogue over the pages given.
QByteArray firstPage(const std::vector<CataloguePage> &pages, quint64 pagesOfFile)
{
    QByteArray page(PageCipher::pageSize, '\0');
    put(page, 16, PageCipher::pageSize, 2);
    put(page, 18, 0x0101, 2); // a file with a rollback journal
    put(page, 20, PageCipher::reserved, 1);
    put(page, 21, 0x402020, 3); // fixed by the format
    put(page, 24, 1, 4);        // state of the file, by which its size counts
    put(page, 28, pagesOfFile, 4);
    put(page, 40, 1, 4); // state of the catalogue
    put(page, 44, 4, 4); // format of the catalogue
    put(page, 56, 1, 4); // texts are UTF-8
    put(page, 92, 1, 4); // the state of the file for which its size was written
    constexpr int interiorHeader = 12;
    put(page, fileHeader, TableInterior, 1);
    put(page, fileHeader + 3, pages.size() - 1, 2);
    put(page, fileHeader + 8, pages.back().number, 4);
    qsizetype cells = PageCipher::pageSize - PageCipher::reserved;
    qsizetype pointer = fileHeader + interiorHeader;
    for (size_t i = 0; i + 1 < pages.size(); ++i, pointer += 2) {
        const QByteArray key = varint(pages[i].last());
        cells -= 4 + key.size();
        if (cells < pointer + 2)
            throw Error(Error::FileDamaged, QStringLiteral("El archivo de la base de datos está dañado."));
        put(page, cells, pages[i].number, 4);
        page.replace(cells + 4, key.size(), key);
        put(page, pointer, static_cast<quint64>(cells), 2);
    }
    put(page, fileHeader + 5, static_cast<quint64>(cells), 2);
    return page;
}

} // namespace

void copyWithNewFirstPage(const QString &path, const QString &copy, const QString &password)
{
    bool anyWhole = false;
    for (const QByteArray &salt : {saltOf(path), rememberedSalt(path)}) {
        QFile file(path);
        if (salt.isEmpty() || !file.open(QIODevice::ReadOnly))
            continue;
        const PageCipher cipher(fileKey(password, salt), salt);
        const Survey survey = surveyOf(file, cipher);
        anyWhole = anyWhole || std::ranges::any_of(survey.kinds, [](quint8 kind) { return kind != 0; });
        const std::vector<CataloguePage> pages = presentPages(survey.catalogue);
        if (pages.empty())
            continue;
        const QByteArray page = cipher.close(firstPage(pages, survey.kinds.size() - 1), 1);
        QFile made(copy);
        if (!QFile::copy(path, copy) || !made.open(QIODevice::ReadWrite) || made.write(page) != page.size())
            throw Error(
                Error::ReadOnly,
                QStringLiteral("No se pudo crear el archivo '%1'.").arg(QDir::toNativeSeparators(copy)));
        return;
    }
    if (!anyWhole)
        throw Error(Error::WrongPassword, QStringLiteral("No es una contraseña válida."));
    throw Error(Error::FileDamaged, QStringLiteral("El archivo de la base de datos está dañado."));
}

} // namespace dao
