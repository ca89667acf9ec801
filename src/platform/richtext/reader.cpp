#include "platform/richtext/richtext.h"

#include "platform/basic/cleantext.h"
#include "platform/basic/errors.h"
#include "platform/richtext/builder.h"
#include "platform/richtext/bullets.h"
#include "platform/richtext/codepage.h"
#include "platform/richtext/headtables.h"
#include "platform/richtext/lexer.h"
#include "platform/richtext/picturegroup.h"

#include <QStringDecoder>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
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
constexpr int largestLetter = 800; // half points
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

struct State {
    Destination destination = Destination::Body;
    bool optional = false; ///< "\*": a group of an unknown word is skipped
    int fallbacks = 1;     ///< characters that stand behind a Unicode one for programs that do not know it
    Letters letters{};
    Paragraph paragraph{};
};

class Reader
{
public:
    Reader(QByteArrayView file, QTextDocument &document) : lexer_(file), builder_(document, tables_) {}
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
    /// The mark of a paragraph, or of a table's row.
    template <void (Builder::*mark)(const Letters &, const Paragraph &)>
    static void ends(Reader &reader, const Token &)
    {
        if (reader.state().destination == Destination::Body)
            (reader.builder_.*mark)(reader.state().letters, reader.state().paragraph);
    }
    void insertPicture();

    Lexer lexer_;
    HeadTables tables_;
    Builder builder_;
    Reading reading_;
    std::vector<State> states_{State{}};
    std::size_t tooDeep_ = 0; ///< groups open beyond the deepest that is read
    int toSkip_ = 0;          ///< characters still to skip behind a Unicode one
    PictureGroup picture_;
};

// clang-format off
const std::unordered_map<std::string_view, Destination> &Reader::destinations()
{
    using enum Destination;
    static const std::unordered_map<std::string_view, Destination> table{
        {"fonttbl", Fonts}, {"colortbl", Colours}, {"listtable", ListTable},
        {"listoverridetable", ListOverrides}, {"pn", Bullet}, {"pict", Picture}, {"shppict", Body},
        {"shp", Shape}, {"shpinst", Shape}, {"shptxt", Body}, {"footnote", Body}, {"shprslt", Skipped},
        {"nonshppict", Skipped}, {"pntext", Skipped}, {"listtext", Skipped}, {"stylesheet", Skipped},
        {"info", Skipped}, {"fldinst", Skipped}, {"header", Skipped}, {"headerl", Skipped},
        {"headerr", Skipped}, {"headerf", Skipped}, {"footer", Skipped}, {"footerl", Skipped},
        {"footerr", Skipped}, {"footerf", Skipped}, {"annotation", Skipped},
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
        {"f", [](Reader &r, const Token &t) { r.state().letters.font = t.parameter; r.tables_.beginFont(t.parameter); }},
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
                r.tables_.lists.setOverrideNumber(t.parameter);
            else
                r.state().paragraph.list = t.parameter;
        }},
        {"list", [](Reader &r, const Token &) { r.tables_.lists.beginList(); }},
        {"listlevel", [](Reader &r, const Token &) { r.tables_.lists.beginLevel(); }},
        {"levelnfc", [](Reader &r, const Token &t) { r.tables_.lists.setLevelNumber(t.parameter); }},
        {"listoverride", [](Reader &r, const Token &) { r.tables_.lists.beginOverride(); }},
        {"listid", [](Reader &r, const Token &t) {
            if (r.state().destination == Destination::ListOverrides)
                r.tables_.lists.setOverrideId(t.parameter);
            else
                r.tables_.lists.setListId(t.parameter);
        }},

        {"par", ends<&Builder::endParagraph>},
        {"sect", ends<&Builder::endParagraph>},
        {"page", ends<&Builder::endParagraph>},
        {"row", ends<&Builder::endRow>},
        {"nestrow", ends<&Builder::endRow>},
        {"cell", stands<u'\t'>}, {"nestcell", stands<u'\t'>}, {"tab", stands<u'\t'>},
        {"line", stands<QChar::LineSeparator>}, {"emdash", stands<u'—'>}, {"endash", stands<u'–'>},
        {"lquote", stands<u'‘'>}, {"rquote", stands<u'’'>}, {"ldblquote", stands<u'“'>},
        {"rdblquote", stands<u'”'>}, {"bullet", stands<u'•'>}, {"emspace", stands<u'\u2003'>},
        {"enspace", stands<u'\u2002'>}, {"~", stands<u'\u00A0'>}, {"_", stands<u'\u2011'>},
        {"-", stands<u'\u00AD'>},

        {"u", [](Reader &r, const Token &t) { r.unicode(t.parameter); }},
        {"uc", [](Reader &r, const Token &t) { r.state().fallbacks = std::clamp(t.parameter, 0, 255); }},
        {"pc", [](Reader &r, const Token &) { r.tables_.setPage(CodePage::Dos850); }},
        {"pca", [](Reader &r, const Token &) { r.tables_.setPage(CodePage::Dos850); }},
        {"ansi", [](Reader &r, const Token &) { r.tables_.setPage(CodePage::Windows1252); }},
        {"ansicpg", [](Reader &r, const Token &t) {
            r.tables_.setPage(t.parameter == 850 || t.parameter == 437 ? CodePage::Dos850 : CodePage::Windows1252);
        }},
        {"deff", [](Reader &r, const Token &t) { r.tables_.setDefaultFont(t.parameter); }},
        {"fcharset", [](Reader &r, const Token &t) {
            constexpr int ofTheOldSystem = 255;
            if (t.parameter == ofTheOldSystem)
                r.tables_.setFontPage(CodePage::Dos850);
        }},
        {"red", [](Reader &r, const Token &t) { r.tables_.colour().setRed(std::clamp(t.parameter, 0, 255)); }},
        {"green", [](Reader &r, const Token &t) { r.tables_.colour().setGreen(std::clamp(t.parameter, 0, 255)); }},
        {"blue", [](Reader &r, const Token &t) { r.tables_.colour().setBlue(std::clamp(t.parameter, 0, 255)); }},
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
    builder_.finish();
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
        tables_.colourText(bytes);
        break;
    case Destination::Fonts:
    case Destination::Body:
        append(decode(bytes, tables_.page(state().letters)));
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
    if (state().destination == Destination::Fonts)
        tables_.fontText(text);
    else if (state().destination == Destination::Body)
        builder_.text(text, state().letters, state().paragraph);
}

void Reader::insertPicture()
{
    if (state().destination == Destination::Skipped || picture_.file().isEmpty())
        return;
    if (!builder_.picture(picture_, state().letters, state().paragraph))
        ++reading_.picturesLeftOut;
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
