#include "platform/richtext/richtext.h"

#include "platform/basic/cleantext.h"
#include "platform/basic/errors.h"
#include "platform/forms/twips.h"
#include "platform/richtext/bullets.h"
#include "platform/richtext/codepage.h"
#include "platform/richtext/lexer.h"
#include "platform/richtext/listtables.h"
#include "platform/richtext/picturegroup.h"
#include "platform/richtext/pictures.h"

#include <QColor>
#include <QStringDecoder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace richtext
{

namespace
{

constexpr qsizetype largestFile = 512 * 1024 * 1024;
constexpr int fileTooLarge = 7;
constexpr std::size_t deepestNesting = 500;
constexpr int largestDistance = 31'680; // twips
constexpr int largestLetter = 800;      // half points
constexpr char start[] = "{\\rtf";

/// What the contents of a group are.
enum class Destination {
    Body,
    Skipped,
    Shape, ///< of what it holds only pictures and texts that say they are such
    Fonts,
    Colours,
    ListTable,
    ListOverrides,
    Bullet, ///< how an older file marks the items of a list
    Picture
};

enum class Script { Normal, Super, Sub };

struct Letters {
    bool bold = false, italic = false, underline = false, strike = false;
    Script script = Script::Normal;
    std::optional<int> font; ///< the file's default without
    int halfPoints = 24;
    int colour = 0, background = 0; ///< places in the colour table

    bool operator==(const Letters &) const = default;
};

struct Paragraph {
    Qt::Alignment alignment = Qt::AlignLeft;
    int left = 0, right = 0, first = 0, before = 0, after = 0; // twips
    int list = 0, level = 0;                                   ///< a list of the tables
    std::optional<QTextListFormat::Style> bullet;              ///< of an older file
};

struct State {
    Destination destination = Destination::Body;
    bool optional = false; ///< "\*": a group of an unknown word is skipped
    int fallbacks = 1;     ///< characters that stand behind a Unicode one for programs that do not know it
    Letters letters{};
    Paragraph paragraph{};
};

struct FontEntry {
    QString name;
    std::optional<CodePage> page;
};

double pixels(int twips)
{
    return forms::toPixels(std::clamp(twips, -largestDistance, largestDistance));
}

class Reader
{
public:
    Reader(QByteArrayView file, QTextDocument &document)
        : lexer_(file), document_(document), cursor_(&document)
    {
    }
    Reading read();

private:
    using Handler = void (*)(Reader &, const Token &);
    static const std::unordered_map<std::string_view, Handler> &handlers();
    static const std::unordered_map<std::string_view, Destination> &destinations();

    void handle(const Token &token);
    void beginGroup();
    void endGroup();
    void word(const Token &token);
    void bytes(QByteArrayView bytes);
    void unicode(int code);
    bool enter(std::string_view word);

    /// A word that says how letters or paragraphs look, or that stands for a character.
    template <auto Member>
    static void letter(Reader &reader, const Token &token)
    {
        reader.state().letters.*Member = token.on();
    }
    template <int Paragraph::*Member>
    static void distance(Reader &reader, const Token &token)
    {
        reader.state().paragraph.*Member = token.parameter;
    }
    template <int alignment>
    static void aligned(Reader &reader, const Token &)
    {
        reader.state().paragraph.alignment = Qt::Alignment(alignment);
    }
    template <char16_t character>
    static void stands(Reader &reader, const Token &)
    {
        reader.append(QString(QChar(character)));
    }

    State &state() { return states_.back(); }
    void append(const QString &text);
    void flush();
    void openParagraph();
    void endParagraph();
    void endRow();
    void dress(const Paragraph &paragraph);
    void joinList(const Paragraph &paragraph);
    void insertPicture();
    void fontText(const QString &text);
    void colourText(QByteArrayView text);
    CodePage page() const;
    const FontEntry *fontOf(const Letters &letters) const;
    QTextCharFormat format(const Letters &letters) const;

    Lexer lexer_;
    QTextDocument &document_;
    QTextCursor cursor_;
    Reading reading_;
    std::vector<State> states_{State{}};
    std::size_t tooDeep_ = 0; ///< groups open beyond the deepest that is read
    int toSkip_ = 0;          ///< characters still to skip behind a Unicode one

    CodePage page_ = CodePage::Windows1252;
    std::unordered_map<int, FontEntry> fonts_;
    int defaultFont_ = 0, fontInTable_ = 0;
    std::vector<QColor> colours_; ///< an invalid one is the reader's own
    QColor colourInTable_;
    ListTables lists_;
    PictureGroup picture_;

    QString pending_; ///< text that looks alike, not yet in the document
    Letters pendingLetters_;
    Paragraph lastParagraph_; ///< as it was at the last text
    bool paragraphEnded_ = false;
    QTextList *list_ = nullptr; ///< of the paragraph before
    std::map<std::pair<int, int>, QTextList *> openLists_;
};

// clang-format off
const std::unordered_map<std::string_view, Destination> &Reader::destinations()
{
    using enum Destination;
    static const std::unordered_map<std::string_view, Destination> table{
        {"fonttbl", Fonts}, {"colortbl", Colours}, {"listtable", ListTable},
        {"listoverridetable", ListOverrides}, {"pn", Bullet}, {"pict", Picture}, {"shppict", Body},
        {"shp", Shape}, {"shpinst", Shape}, {"shptxt", Body}, {"shprslt", Skipped},
        {"nonshppict", Skipped}, {"pntext", Skipped}, {"listtext", Skipped}, {"stylesheet", Skipped},
        {"info", Skipped}, {"fldinst", Skipped}, {"header", Skipped}, {"headerl", Skipped},
        {"headerr", Skipped}, {"headerf", Skipped}, {"footer", Skipped}, {"footerl", Skipped},
        {"footerr", Skipped}, {"footerf", Skipped}, {"footnote", Skipped}, {"annotation", Skipped},
        {"object", Shape}, {"objdata", Skipped}, {"result", Body}, {"filetbl", Skipped},
        {"revtbl", Skipped}, {"private", Skipped}, {"xe", Skipped}, {"tc", Skipped},
        {"template", Skipped}, {"operator", Skipped},
    };
    return table;
}

const std::unordered_map<std::string_view, Reader::Handler> &Reader::handlers()
{
    static const std::unordered_map<std::string_view, Handler> table{
        {"b", letter<&Letters::bold>}, {"i", letter<&Letters::italic>},
        {"ul", letter<&Letters::underline>}, {"uld", letter<&Letters::underline>},
        {"uldb", letter<&Letters::underline>}, {"ulw", letter<&Letters::underline>},
        {"uldash", letter<&Letters::underline>}, {"ulth", letter<&Letters::underline>},
        {"ulwave", letter<&Letters::underline>}, {"strike", letter<&Letters::strike>},
        {"ulnone", [](Reader &r, const Token &) { r.state().letters.underline = false; }},
        {"super", [](Reader &r, const Token &t) { r.state().letters.script = t.on() ? Script::Super : Script::Normal; }},
        {"sub", [](Reader &r, const Token &t) { r.state().letters.script = t.on() ? Script::Sub : Script::Normal; }},
        {"nosupersub", [](Reader &r, const Token &) { r.state().letters.script = Script::Normal; }},
        {"plain", [](Reader &r, const Token &) { r.state().letters = Letters{}; }},
        {"fs", [](Reader &r, const Token &t) { r.state().letters.halfPoints = std::clamp(t.parameter, 2, largestLetter); }},
        {"f", [](Reader &r, const Token &t) { r.state().letters.font = r.fontInTable_ = t.parameter; }},
        {"cf", [](Reader &r, const Token &t) { r.state().letters.colour = t.parameter; }},
        {"cb", [](Reader &r, const Token &t) { r.state().letters.background = t.parameter; }},
        {"highlight", [](Reader &r, const Token &t) { r.state().letters.background = t.parameter; }},
        {"chcbpat", [](Reader &r, const Token &t) { r.state().letters.background = t.parameter; }},

        {"pard", [](Reader &r, const Token &) { r.state().paragraph = Paragraph{}; }},
        {"ql", aligned<Qt::AlignLeft>}, {"qc", aligned<Qt::AlignHCenter>},
        {"qr", aligned<Qt::AlignRight>}, {"qj", aligned<Qt::AlignJustify>},
        {"li", distance<&Paragraph::left>}, {"ri", distance<&Paragraph::right>},
        {"fi", distance<&Paragraph::first>}, {"sb", distance<&Paragraph::before>},
        {"sa", distance<&Paragraph::after>}, {"ilvl", distance<&Paragraph::level>},
        {"ls", [](Reader &r, const Token &t) {
            if (r.state().destination == Destination::ListOverrides)
                r.lists_.setOverrideNumber(t.parameter);
            else
                r.state().paragraph.list = t.parameter;
        }},
        {"list", [](Reader &r, const Token &) { r.lists_.beginList(); }},
        {"listlevel", [](Reader &r, const Token &) { r.lists_.beginLevel(); }},
        {"levelnfc", [](Reader &r, const Token &t) { r.lists_.setLevelNumber(t.parameter); }},
        {"listoverride", [](Reader &r, const Token &) { r.lists_.beginOverride(); }},
        {"listid", [](Reader &r, const Token &t) {
            if (r.state().destination == Destination::ListOverrides)
                r.lists_.setOverrideId(t.parameter);
            else
                r.lists_.setListId(t.parameter);
        }},

        {"par", [](Reader &r, const Token &) { r.endParagraph(); }},
        {"sect", [](Reader &r, const Token &) { r.endParagraph(); }},
        {"page", [](Reader &r, const Token &) { r.endParagraph(); }},
        {"row", [](Reader &r, const Token &) { r.endRow(); }},
        {"nestrow", [](Reader &r, const Token &) { r.endRow(); }},
        {"cell", stands<u'\t'>}, {"nestcell", stands<u'\t'>}, {"tab", stands<u'\t'>},
        {"line", stands<QChar::LineSeparator>}, {"emdash", stands<u'—'>}, {"endash", stands<u'–'>},
        {"lquote", stands<u'‘'>}, {"rquote", stands<u'’'>}, {"ldblquote", stands<u'“'>},
        {"rdblquote", stands<u'”'>}, {"bullet", stands<u'•'>}, {"emspace", stands<u'\u2003'>},
        {"enspace", stands<u'\u2002'>}, {"~", stands<u'\u00A0'>}, {"_", stands<u'\u2011'>},
        {"-", stands<u'\u00AD'>},

        {"u", [](Reader &r, const Token &t) { r.unicode(t.parameter); }},
        {"uc", [](Reader &r, const Token &t) { r.state().fallbacks = std::clamp(t.parameter, 0, 255); }},
        {"pc", [](Reader &r, const Token &) { r.page_ = CodePage::Dos850; }},
        {"pca", [](Reader &r, const Token &) { r.page_ = CodePage::Dos850; }},
        {"ansi", [](Reader &r, const Token &) { r.page_ = CodePage::Windows1252; }},
        {"ansicpg", [](Reader &r, const Token &t) {
            r.page_ = t.parameter == 850 || t.parameter == 437 ? CodePage::Dos850 : CodePage::Windows1252;
        }},
        {"deff", [](Reader &r, const Token &t) { r.defaultFont_ = t.parameter; }},
        {"fcharset", [](Reader &r, const Token &t) {
            constexpr int ofTheOldSystem = 255;
            if (t.parameter == ofTheOldSystem)
                r.fonts_[r.fontInTable_].page = CodePage::Dos850;
        }},
        {"red", [](Reader &r, const Token &t) { r.colourInTable_.setRed(std::clamp(t.parameter, 0, 255)); }},
        {"green", [](Reader &r, const Token &t) { r.colourInTable_.setGreen(std::clamp(t.parameter, 0, 255)); }},
        {"blue", [](Reader &r, const Token &t) { r.colourInTable_.setBlue(std::clamp(t.parameter, 0, 255)); }},
    };
    return table;
}
// clang-format on

Reading Reader::read()
{
    for (Token token = lexer_.next(); token.kind != Token::Kind::End && !states_.empty();
         token = lexer_.next())
        handle(token);
    reading_.complete = reading_.complete && states_.empty();
    if (states_.empty())
        states_.emplace_back();
    flush();
    if (!paragraphEnded_)
        dress(lastParagraph_);
    return reading_;
}

void Reader::handle(const Token &token)
{
    using Kind = Token::Kind;
    if (token.kind == Kind::GroupStart)
        beginGroup();
    else if (token.kind == Kind::GroupEnd)
        endGroup();
    else if (tooDeep_ > 0)
        reading_.complete = false;
    else if (token.kind == Kind::Text)
        bytes(token.bytes);
    else if (token.kind == Kind::Byte) {
        const char byte = static_cast<char>(token.parameter);
        bytes({&byte, 1});
    } else if (token.kind == Kind::Word)
        word(token);
    else if (state().destination == Destination::Picture)
        picture_.binary(token.bytes);
}

void Reader::beginGroup()
{
    toSkip_ = 0;
    if (tooDeep_ > 0 || states_.size() >= deepestNesting) {
        ++tooDeep_;
        return;
    }
    states_.push_back(states_.back());
    state().optional = false;
}

/// The first state is that of the file around its one group.
void Reader::endGroup()
{
    toSkip_ = 0;
    if (tooDeep_ > 0) {
        --tooDeep_;
        return;
    }
    const Destination ended = state().destination;
    const std::optional<QTextListFormat::Style> bullet = state().paragraph.bullet;
    states_.pop_back();
    if (states_.size() == 1) {
        states_.clear();
        return;
    }
    if (ended == Destination::Picture && state().destination != Destination::Picture)
        insertPicture();
    if (ended == Destination::Bullet)
        state().paragraph.bullet = bullet; // it is told in a group and is the paragraph's around it
}

/// Whether the word makes the group one that is read in its own way.
bool Reader::enter(std::string_view word)
{
    const bool optional = std::exchange(state().optional, false);
    const auto known = destinations().find(word);
    if (known == destinations().end()) {
        if (!optional || handlers().contains(word))
            return false;
        state().destination = Destination::Skipped;
        return true;
    }
    state().destination = known->second;
    if (known->second == Destination::Picture)
        picture_ = {};
    return true;
}

void Reader::word(const Token &token)
{
    if (state().destination == Destination::Skipped)
        return;
    if (toSkip_ > 0 && token.word != "u") {
        --toSkip_;
        return;
    }
    if (token.word == "*") {
        state().optional = true;
        return;
    }
    if (enter(token.word))
        return;
    if (state().destination == Destination::Picture) {
        picture_.word(token);
        return;
    }
    if (state().destination == Destination::Bullet) {
        const auto bullet = std::ranges::find(bullets, token.word, &Bullet::word);
        if (bullet != bullets.end())
            state().paragraph.bullet = bullet->style;
        return;
    }
    if (const auto handler = handlers().find(token.word); handler != handlers().end())
        handler->second(*this, token);
}

void Reader::bytes(QByteArrayView bytes)
{
    const qsizetype skipped = std::min<qsizetype>(toSkip_, bytes.size());
    toSkip_ -= static_cast<int>(skipped);
    bytes = bytes.sliced(skipped);
    if (bytes.isEmpty())
        return;
    switch (state().destination) {
    case Destination::Picture:
        picture_.hexadecimal(bytes);
        break;
    case Destination::Colours:
        colourText(bytes);
        break;
    case Destination::Fonts:
    case Destination::Body:
        append(decode(bytes, page()));
        break;
    default:
        break;
    }
}

void Reader::unicode(int code)
{
    toSkip_ = state().fallbacks;
    append(QString(QChar(static_cast<char16_t>(code & 0xFFFF)))); // it is written with a sign
}

void Reader::append(const QString &text)
{
    if (state().destination == Destination::Fonts) {
        fontText(text);
        return;
    }
    if (state().destination != Destination::Body)
        return;
    openParagraph();
    if (state().letters != pendingLetters_)
        flush();
    pendingLetters_ = state().letters;
    lastParagraph_ = state().paragraph;
    pending_ += text;
}

void Reader::flush()
{
    if (pending_.isEmpty())
        return;
    QString text = basic::cleanText(pending_);
    text.remove(QChar::ObjectReplacementCharacter); // a picture's place, without a picture
    cursor_.insertText(text, format(pendingLetters_));
    pending_.clear();
}

/// The mark of a paragraph ends it: the next one begins with what comes after, if anything does.
void Reader::openParagraph()
{
    if (!paragraphEnded_)
        return;
    cursor_.insertBlock(QTextBlockFormat(), format(state().letters));
    paragraphEnded_ = false;
}

void Reader::endParagraph()
{
    if (state().destination != Destination::Body)
        return;
    openParagraph();
    flush();
    if (cursor_.block().length() <= 1)
        cursor_.setBlockCharFormat(format(state().letters));
    dress(state().paragraph);
    paragraphEnded_ = true;
}

/// A tab stands between two cells, none behind the last one.
void Reader::endRow()
{
    if (pending_.endsWith(u'\t'))
        pending_.chop(1);
    endParagraph();
}

void Reader::dress(const Paragraph &paragraph)
{
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    const auto set = [&](void (QTextBlockFormat::*setter)(qreal), int twips) {
        if (twips != 0)
            (format.*setter)(pixels(twips));
    };
    set(&QTextBlockFormat::setTopMargin, std::max(paragraph.before, 0));
    set(&QTextBlockFormat::setBottomMargin, std::max(paragraph.after, 0));
    const bool inList = paragraph.list > 0 || paragraph.bullet;
    if (!inList) { // a list has the indents of its level
        set(&QTextBlockFormat::setLeftMargin, paragraph.left);
        set(&QTextBlockFormat::setRightMargin, paragraph.right);
        set(&QTextBlockFormat::setTextIndent, paragraph.first);
    }
    cursor_.setBlockFormat(format);
    if (inList)
        joinList(paragraph);
    else
        list_ = nullptr;
}

/// Paragraphs of one list and level go on counting, unless a level above came in between. An older file has
/// no names for its lists: there what follows without a break is one.
void Reader::joinList(const Paragraph &paragraph)
{
    const int level = std::clamp(paragraph.level, 0, ListTables::levels - 1);
    const QTextListFormat::Style style = paragraph.bullet.value_or(lists_.style(paragraph.list, level));
    QTextList *list = list_ && list_->format().style() == style ? list_ : nullptr;
    if (paragraph.list > 0) {
        openLists_.erase(openLists_.upper_bound({paragraph.list, level}),
                         openLists_.lower_bound({paragraph.list + 1, 0}));
        const auto known = openLists_.find({paragraph.list, level});
        list = known == openLists_.end() ? nullptr : known->second;
    }
    if (list) {
        list->add(cursor_.block());
    } else {
        QTextListFormat format;
        format.setStyle(style);
        format.setIndent(level + 1);
        list = cursor_.createList(format);
    }
    if (paragraph.list > 0)
        openLists_[{paragraph.list, level}] = list;
    list_ = list;
}

void Reader::insertPicture()
{
    if (state().destination == Destination::Skipped || picture_.file().isEmpty())
        return;
    auto format = addPicture(document_, picture_.file());
    if (!format) {
        ++reading_.picturesLeftOut;
        return;
    }
    if (const QSizeF size = picture_.shownSize(); !size.isEmpty()) {
        format->setWidth(size.width());
        format->setHeight(size.height());
    }
    openParagraph();
    flush();
    lastParagraph_ = state().paragraph;
    cursor_.insertImage(*format);
}

void Reader::fontText(const QString &text)
{
    const qsizetype end = text.indexOf(u';');
    QString &name = fonts_[fontInTable_].name;
    if (name.endsWith(u';'))
        return;
    name += end < 0 ? text : text.first(end + 1);
}

/// A semicolon ends a colour; one that says nothing stands for the reader's own.
void Reader::colourText(QByteArrayView text)
{
    for (char c : text) {
        if (c != ';')
            continue;
        colours_.push_back(colourInTable_);
        colourInTable_ = QColor();
    }
}

const FontEntry *Reader::fontOf(const Letters &letters) const
{
    const auto font = fonts_.find(letters.font.value_or(defaultFont_));
    return font == fonts_.end() ? nullptr : &font->second;
}

CodePage Reader::page() const
{
    const FontEntry *font = fontOf(states_.back().letters);
    return font ? font->page.value_or(page_) : page_;
}

QTextCharFormat Reader::format(const Letters &letters) const
{
    QTextCharFormat format;
    if (const FontEntry *font = fontOf(letters)) {
        const QString name = basic::cleanText(font->name).remove(u';').trimmed();
        if (!name.isEmpty())
            format.setFontFamilies({name});
    }
    format.setFontPointSize(letters.halfPoints / 2.0);
    if (letters.bold)
        format.setFontWeight(QFont::Bold);
    if (letters.italic)
        format.setFontItalic(true);
    if (letters.underline)
        format.setFontUnderline(true);
    if (letters.strike)
        format.setFontStrikeOut(true);
    if (letters.script != Script::Normal)
        format.setVerticalAlignment(letters.script == Script::Super ? QTextCharFormat::AlignSuperScript
                                                                    : QTextCharFormat::AlignSubScript);
    const auto colour = [this](int place) {
        return place > 0 && place < static_cast<int>(colours_.size())
                   ? colours_[static_cast<std::size_t>(place)]
                   : QColor();
    };
    if (const QColor letter = colour(letters.colour); letter.isValid())
        format.setForeground(letter);
    if (const QColor background = colour(letters.background); background.isValid())
        format.setBackground(background);
    return format;
}

QString plainText(const QByteArray &file)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(file);
    return basic::cleanText(utf8.hasError() ? decode(file, CodePage::Windows1252) : text);
}

} // namespace

Reading read(const QByteArray &file, QTextDocument &document)
{
    if (file.size() > largestFile)
        throw basic::Error(fileTooLarge, u"El archivo es demasiado grande para abrirlo como texto."_s);
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    Reading reading;
    const QByteArrayView fromItsStart = QByteArrayView(file).trimmed();
    if (fromItsStart.startsWith(start)) {
        QTextCursor whole(&document);
        whole.beginEditBlock();
        reading = Reader(fromItsStart, document).read();
        whole.endEditBlock();
    } else {
        reading.isRichText = false;
        document.setPlainText(plainText(file));
    }
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
    return reading;
}

} // namespace richtext
