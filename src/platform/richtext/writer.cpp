#include "platform/richtext/richtext.h"

#include "platform/forms/twips.h"
#include "platform/richtext/bullets.h"
#include "platform/richtext/codepage.h"
#include "platform/richtext/listtables.h"
#include "platform/richtext/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <vector>

namespace richtext
{

namespace
{

constexpr qsizetype picturesLine = 64; // bytes of a picture in a line of the file
constexpr int levelIndent = 360;       // twips

QByteArray number(int value)
{
    return QByteArray::number(value);
}

int twips(double pixels)
{
    return static_cast<int>(std::lround(forms::toTwips(pixels)));
}

/// What is told once at the head of the file and called by its place.
template <class Entry>
class Table
{
public:
    int place(const Entry &entry)
    {
        const auto found = std::ranges::find(entries_, entry);
        if (found != entries_.end())
            return static_cast<int>(found - entries_.begin());
        entries_.push_back(entry);
        return static_cast<int>(entries_.size() - 1);
    }
    const std::vector<Entry> &entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

class Writer
{
public:
    explicit Writer(const QTextDocument &document) : document_(document)
    {
        fonts_.place(document.defaultFont().family());
        colours_.place(QColor()); // the reader's own
    }
    QByteArray write();

private:
    void block(const QTextBlock &block);
    void endOfBlock(const QTextBlock &block);
    void paragraph(const QTextBlock &block);
    void listItem(const QTextList &list);
    void fragment(const QString &text, const QTextCharFormat &format);
    void letters(const QTextCharFormat &format);
    void picture(const QTextImageFormat &format);
    void text(const QString &text);
    QByteArray head() const;
    QByteArray listTables() const;

    void word(const char *name, int parameter) { body_ += QByteArray(name) + number(parameter); }

    const QTextDocument &document_;
    QByteArray body_;
    Table<QString> fonts_;
    Table<QColor> colours_;
    Table<const QTextList *> lists_;
};

QByteArray Writer::write()
{
    for (QTextBlock part = document_.begin(); part.isValid(); part = part.next())
        block(part);
    return head() + body_ + "}\n";
}

void Writer::block(const QTextBlock &block)
{
    body_ += "\\pard\\plain";
    paragraph(block);
    body_ += ' ';
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        if (!format.isImageFormat())
            fragment(part.fragment().text(), format);
        else
            for (int i = 0; i < part.fragment().length(); ++i)
                picture(format.toImageFormat());
    }
    endOfBlock(block);
}

/// The cells of a table's row are one line of text with tabs between them.
void Writer::endOfBlock(const QTextBlock &block)
{
    const QTextTable *table = QTextCursor(block).currentTable();
    const QTextTableCell cell = table ? table->cellAt(block.position()) : QTextTableCell();
    const bool cellEnds = cell.isValid() && cell.lastCursorPosition().block() == block;
    const bool rowEnds = cell.isValid() && cell.column() + cell.columnSpan() >= table->columns();
    body_ += cellEnds && !rowEnds ? "\\tab\n" : "{";
    if (cellEnds && !rowEnds)
        return;
    letters(block.charFormat());
    body_ += "\\par}\n";
}

void Writer::paragraph(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    const Qt::Alignment alignment = format.alignment();
    if (alignment & Qt::AlignHCenter)
        body_ += "\\qc";
    else if (alignment & Qt::AlignRight)
        body_ += "\\qr";
    else if (alignment & Qt::AlignJustify)
        body_ += "\\qj";
    const auto distance = [this](const char *name, double pixels) {
        if (twips(pixels) != 0)
            word(name, twips(pixels));
    };
    distance("\\sb", format.topMargin());
    distance("\\sa", format.bottomMargin());
    if (const QTextList *list = block.textList()) {
        listItem(*list);
        return;
    }
    distance("\\li", format.leftMargin());
    distance("\\ri", format.rightMargin());
    distance("\\fi", format.textIndent());
}

int levelOf(const QTextList &list)
{
    return std::clamp(list.format().indent() - 1, 0, ListTables::levels - 1);
}

void Writer::listItem(const QTextList &list)
{
    word("\\ls", lists_.place(&list) + 1);
    word("\\ilvl", levelOf(list));
    word("\\fi-", levelIndent);
    word("\\li", levelIndent * 2 * (levelOf(list) + 1));
}

void Writer::fragment(const QString &fragment, const QTextCharFormat &format)
{
    body_ += '{';
    letters(format);
    body_ += ' ';
    text(fragment);
    body_ += '}';
}

void Writer::letters(const QTextCharFormat &format)
{
    const QFont fallback = document_.defaultFont();
    const QStringList families = format.fontFamilies().toStringList();
    word("\\f", fonts_.place(families.isEmpty() ? fallback.family() : families.first()));
    const double points = format.fontPointSize() > 0 ? format.fontPointSize() : fallback.pointSizeF();
    word("\\fs", std::max(2, static_cast<int>(std::lround(points * 2))));
    if (format.fontWeight() >= QFont::DemiBold)
        body_ += "\\b";
    if (format.fontItalic())
        body_ += "\\i";
    if (format.fontUnderline())
        body_ += "\\ul";
    if (format.fontStrikeOut())
        body_ += "\\strike";
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        body_ += "\\super";
    if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        body_ += "\\sub";
    if (format.foreground().style() != Qt::NoBrush)
        word("\\cf", colours_.place(format.foreground().color()));
    if (format.background().style() != Qt::NoBrush)
        word("\\chcbpat", colours_.place(format.background().color()));
}

void Writer::picture(const QTextImageFormat &format)
{
    const QByteArray file = pictureFile(document_, format.name());
    if (file.isEmpty())
        return;
    QBuffer buffer;
    buffer.setData(file);
    const QSize natural = QImageReader(&buffer).size();
    const auto side = [](double told, int dots) { return told > 0 ? told : dots; };
    body_ += isPng(file) ? "{\\pict\\pngblip" : "{\\pict\\jpegblip";
    word("\\picw", natural.width());
    word("\\pich", natural.height());
    word("\\picwgoal", twips(side(format.width(), natural.width())));
    word("\\pichgoal", twips(side(format.height(), natural.height())));
    for (qsizetype at = 0; at < file.size(); at += picturesLine)
        body_ += '\n' + file.mid(at, picturesLine).toHex();
    body_ += "}\n";
}

void Writer::text(const QString &text)
{
    for (QChar c : text) {
        if (c == u'\\' || c == u'{' || c == u'}')
            (body_ += '\\') += c.toLatin1();
        else if (c == u'\t')
            body_ += "\\tab ";
        else if (c == QChar::LineSeparator)
            body_ += "\\line ";
        else if (c.unicode() >= 0x20 && c.unicode() < 0x7F)
            body_ += c.toLatin1();
        else if (const auto byte = byteIn1252(c); byte && *byte >= 0x80)
            body_ += "\\'" + QByteArray(1, static_cast<char>(*byte)).toHex();
        else if (c.unicode() >= 0x80)
            body_ += "\\u" + number(static_cast<qint16>(c.unicode())) + '?';
    }
}

QByteArray Writer::head() const
{
    QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n{\\fonttbl";
    for (std::size_t i = 0; i < fonts_.entries().size(); ++i) {
        Writer name(document_); // the escapes are those of the text
        name.text(QString(fonts_.entries()[i]).remove(u';'));
        head += "{\\f" + number(static_cast<int>(i)) + "\\fnil " + name.body_ + ";}";
    }
    head += "}\n{\\colortbl";
    for (const QColor &colour : colours_.entries()) {
        if (colour.isValid())
            head += "\\red" + number(colour.red()) + "\\green" + number(colour.green()) + "\\blue" +
                    number(colour.blue());
        head += ';';
    }
    return head + "}\n" + listTables();
}

QByteArray Writer::listTables() const
{
    if (lists_.entries().empty())
        return {};
    QByteArray tables = "{\\*\\listtable";
    QByteArray calls = "{\\*\\listoverridetable";
    for (std::size_t i = 0; i < lists_.entries().size(); ++i) {
        const QTextList &list = *lists_.entries()[i];
        const QByteArray id = number(static_cast<int>(i) + 1);
        const auto bullet = std::ranges::find(bullets, list.format().style(), &Bullet::style);
        const int mark = bullet == bullets.end() ? plainBullet : bullet->number;
        tables += "{\\list\\listtemplateid" + id;
        for (int level = 0; level <= levelOf(list); ++level)
            tables += "{\\listlevel\\levelnfc" + number(mark) + "\\leveljc0\\levelstartat1\\levelfollow0" +
                      (mark == plainBullet
                           ? QByteArray("{\\leveltext\\'01\\'95;}{\\levelnumbers;}")
                           : "{\\leveltext\\'02\\'0" + number(level) + ".;}{\\levelnumbers\\'01;}") +
                      "\\fi-" + number(levelIndent) + "\\li" + number(levelIndent * 2 * (level + 1)) + '}';
        tables += "\\listid" + id + "}";
        calls += "{\\listoverride\\listid" + id + "\\listoverridecount0\\ls" + id + '}';
    }
    return tables + "}\n" + calls + "}\n";
}

} // namespace

QByteArray write(const QTextDocument &document)
{
    return Writer(document).write();
}

} // namespace richtext
