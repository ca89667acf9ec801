#include "platform/richtext/pictures.h"
#include "platform/richtext/richtext.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace
{

QByteArray picture(const char *kind, QSize size = {12, 8})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, kind);
    return file;
}

/// A run as a person sees it: its text between marks of how it looks.
QString run(const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    if (format.isImageFormat()) {
        const QTextImageFormat image = format.toImageFormat();
        return u"<imagen %1x%2>"_s.arg(image.width()).arg(image.height());
    }
    QString marks;
    if (format.fontWeight() >= QFont::DemiBold)
        marks += u'b';
    if (format.fontItalic())
        marks += u'i';
    if (format.fontUnderline())
        marks += u'u';
    if (format.fontStrikeOut())
        marks += u's';
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        marks += u'^';
    if (format.foreground().style() != Qt::NoBrush)
        marks += format.foreground().color().name();
    if (format.background().style() != Qt::NoBrush)
        marks += u'/' + format.background().color().name();
    if (format.fontPointSize() > 0 && format.fontPointSize() != 12)
        marks += QString::number(format.fontPointSize());
    return marks.isEmpty() ? fragment.text() : u"[%1:%2]"_s.arg(marks, fragment.text());
}

/// The document, a line a paragraph: its alignment, its place in a list, its indents and its runs.
QString seen(const QTextDocument &document)
{
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line;
        const QTextBlockFormat format = block.blockFormat();
        if (format.alignment() & (Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify))
            line += format.alignment() & Qt::AlignHCenter ? u"|"
                    : format.alignment() & Qt::AlignRight ? u">"
                                                          : u"=";
        if (const QTextList *list = block.textList())
            line += u"%1%2 "_s.arg(QString(list->format().indent() - 1, u'>'), list->itemText(block));
        if (format.leftMargin() != 0 || format.textIndent() != 0)
            line += u"(%1,%2)"_s.arg(format.leftMargin()).arg(format.textIndent());
        for (auto part = block.begin(); !part.atEnd(); ++part)
            line += run(part.fragment());
        lines += line.replace(QChar::LineSeparator, u'/');
    }
    return lines.join(u'\n');
}

struct Read {
    explicit Read(const QByteArray &file) : reading(richtext::read(file, document)) {}
    QTextDocument document;
    richtext::Reading reading;
};

QString seen(const QByteArray &body)
{
    return seen(Read("{\\rtf1\\ansi " + body + '}').document);
}

/// What is written and read back looks the same.
void expectKept(const QTextDocument &document)
{
    const Read again(richtext::write(document));
    EXPECT_EQ(seen(again.document), seen(document));
    EXPECT_TRUE(again.reading.isRichText && again.reading.complete);
    EXPECT_EQ(again.reading.picturesLeftOut, 0);
}

QByteArray fileOf(const QTextDocument &document, int pictureNumber)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isImageFormat() && pictureNumber-- == 0)
                return richtext::pictureFile(document, part.fragment().charFormat().toImageFormat().name());
    return {};
}

} // namespace

TEST(RichText, readsTheLettersOfEveryCodePage)
{
    EXPECT_EQ(seen("Ni\\'f1o \\'80 \\'93x\\'94"), u"Niño € “x”"_s);
    EXPECT_EQ(seen("\\pc Ni\\'a4o \\'b5"), u"Niño Á"_s);
    EXPECT_EQ(seen("\\ansicpg850 \\'a0\\'82"), u"áé"_s);
    EXPECT_EQ(seen("{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset255 Terminal;}}\\f1 \\'a4\\f0 \\'f1"),
              u"ññ"_s);
    EXPECT_EQ(seen("crudo: \xF1"), u"crudo: ñ"_s);
    EXPECT_EQ(seen("\\lquote a\\rquote\\~b\\emdash c\\bullet\\tab d\\line e"), u"‘a’\u00A0b—c•\td/e"_s);
    EXPECT_EQ(seen("\\{\\\\\\}"), u"{\\}"_s);
}

TEST(RichText, aUnicodeCharacterTakesThePlaceOfItsFallback)
{
    EXPECT_EQ(seen("\\u937?z"), u"Ωz"_s);
    EXPECT_EQ(seen("\\u937\\'3fz"), u"Ωz"_s);
    EXPECT_EQ(seen("\\uc2\\u937??z"), u"Ωz"_s);
    EXPECT_EQ(seen("{\\uc0\\u937 z}\\u937?z"), u"ΩzΩz"_s);
    EXPECT_EQ(seen("\\uc3\\u937?{zz}"), u"Ωzz"_s) << "a group ends what is skipped";
    EXPECT_EQ(seen("\\u-10179?\\u-8704?"), u"😀"_s);
    EXPECT_EQ(seen("a\\u-10179?b\\u0?\\u-560?c\\u-4?d"), u"abcd"_s) << "halves and marks of the document";
}

TEST(RichText, lettersAndParagraphsLookAsTheyAreTold)
{
    EXPECT_EQ(seen("a{\\b b{\\i c}}\\ul d\\ulnone\\strike e\\plain{\\super 2}f"),
              u"a[b:b][bi:c][u:d][s:e][^:2]f"_s);
    EXPECT_EQ(
        seen("{\\colortbl;\\red255\\green0\\blue0;}\\fs36\\cf1 a\\cf0\\fs24\\b0 b\\highlight1 c\\cf9 d"),
        u"[#ff000018:a]b[/#ff0000:cd]"_s);
    EXPECT_EQ(seen("\\qc a\\par b\\par\\pard\\qr c\\par\\pard\\li300\\fi-150 d\\par\\par\\pard{\\qj e}"),
              u"|a\n|b\n>c\n(20,-10)d\n(20,-10)\n=e"_s);
    EXPECT_EQ(seen("a\\par"), u"a"_s) << "the mark ends a paragraph and begins none";
    EXPECT_EQ(seen("\\trowd a\\cell b\\cell\\row\\trowd c\\cell d\\cell\\row e"), u"a\tb\nc\td\ne"_s);
    const Read fonts("{\\rtf1\\deff1{\\fonttbl{\\f0 Arial{\\*\\falt Otra};}{\\f1\\froman Times;}}a{\\f0 b}}");
    QTextCursor cursor(const_cast<QTextDocument *>(&fonts.document));
    cursor.setPosition(1);
    EXPECT_EQ(cursor.charFormat().fontFamilies().toStringList(), QStringList{u"Times"_s});
    cursor.setPosition(2);
    EXPECT_EQ(cursor.charFormat().fontFamilies().toStringList(), QStringList{u"Arial"_s});
}

TEST(RichText, listsCountAsTheyDidInTheFile)
{
    EXPECT_EQ(
        seen(
            "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-360\\li720 a\\par"
            "{\\pntext\\f1\\'B7\\tab}b\\par\\pard c\\par"
            "{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec}d\\par{\\pntext 2.\\tab}e\\par"),
        u". a\n. b\nc\n1. d\n2. e"_s);
    EXPECT_EQ(seen("{\\*\\listtable{\\list{\\listlevel\\levelnfc0}{\\listlevel\\levelnfc4}\\listid7}}"
                   "{\\*\\listoverridetable{\\listoverride\\listid7\\ls2}}"
                   "\\ls2 a\\par\\ilvl1 b\\par c\\par\\ilvl0 d\\par\\pard x\\par\\ls2 e\\par\\ilvl1 f\\par"),
              u"1. a\n>a. b\n>b. c\n2. d\nx\n3. e\n>a. f"_s);
}

TEST(RichText, picturesStayAsTheyCame)
{
    const QByteArray png = picture("PNG"), jpeg = picture("JPG", {30, 20});
    const Read in("{\\rtf1 a{\\pict\\pngblip\\picwgoal300\\pichgoal150\\picscalex200\n" + png.toHex() +
                  "}{\\pict\\jpegblip\\bin" + QByteArray::number(jpeg.size()) + ' ' + jpeg + "}b}");
    EXPECT_EQ(seen(in.document), u"a<imagen 40x10><imagen 30x20>b"_s);
    const Read again(richtext::write(in.document));
    EXPECT_EQ(seen(again.document), seen(in.document));
    EXPECT_EQ(fileOf(again.document, 0), png);
    EXPECT_EQ(fileOf(again.document, 1), jpeg);

    const Read lost("{\\rtf1 a{\\pict\\wmetafile8 0102}{\\pict\\pngblip " + png.first(20).toHex() +
                    "}{\\*\\shppict{\\pict\\pngblip " + png.toHex() +
                    "}}{\\nonshppict{\\pict\\wmetafile8 0102}}b}");
    EXPECT_EQ(seen(lost.document), u"a<imagen 12x8>b"_s);
    EXPECT_EQ(lost.reading.picturesLeftOut, 2);
}

TEST(RichText, whatIsUnknownIsSkippedAndWhatIsDamagedIsReadAsFarAsItGoes)
{
    EXPECT_EQ(
        seen(
            "{\\*\\desconocido x{\\b y}}{\\info{\\title t}}{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt z}}\\otra1 w"),
        u"zw"_s);
    const Read plain("Fracción 62 %\r\nd'un {texto}");
    EXPECT_EQ(seen(plain.document), u"Fracción 62 %\nd'un {texto}"_s);
    EXPECT_FALSE(plain.reading.isRichText);
    EXPECT_EQ(seen(Read("Ni\xF1o").document), u"Niño"_s);
    EXPECT_EQ(seen(Read({}).document), QString());

    const QByteArray whole =
        "{\\rtf1\\ansi Ni\\'f1o {\\b \\u937?}{\\pict\\pngblip " + picture("PNG").toHex() + "}}";
    for (qsizetype length = 5; length < whole.size(); ++length)
        EXPECT_FALSE(Read(whole.first(length)).reading.complete) << length;
    EXPECT_TRUE(Read(whole + "\0basura"_ba).reading.complete);
    const Read deep("{\\rtf1 a" + QByteArray(100'000, '{') + 'b' + QByteArray(100'000, '}') + "c}");
    EXPECT_EQ(seen(deep.document), u"ac"_s);
    EXPECT_FALSE(deep.reading.complete);
    for (const char *odd :
         {"\\bin99999999999 x", "\\fs-99999999999 x", "\\li999999999\\ls-5\\ilvl77 x\\par", "\\'zz", "\\",
          "\\u", "{\\fonttbl{\\f-1 ;;;}}x", "{\\colortbl", "\\ls9\\ilvl-3 a\\par"})
        richtext::write(Read("{\\rtf1 " + QByteArray(odd) + '}').document);
}

TEST(RichText, whatAPersonWritesIsReadBack)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat bold, coloured;
    bold.setFontWeight(QFont::Bold);
    bold.setFontPointSize(14);
    coloured.setForeground(QColor(0xCC, 0, 0));
    coloured.setFontItalic(true);
    coloured.setFontPointSize(12);
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignHCenter);
    cursor.setBlockFormat(centred);
    cursor.insertText(u"{Título} \\ de D'Amico — ñandú 😀 ≥ 55 Ω"_s, bold);
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertText(u"tab\tlínea\u2028otra"_s, coloured);
    cursor.insertImage(*richtext::addPicture(document, picture("PNG")));
    for (const auto style : {QTextListFormat::ListDisc, QTextListFormat::ListDecimal}) {
        cursor.insertBlock(QTextBlockFormat());
        cursor.createList(style);
        cursor.insertText(u"uno"_s, coloured);
        cursor.insertBlock();
        cursor.insertText(u"dos"_s, coloured);
        QTextListFormat inner;
        inner.setStyle(QTextListFormat::ListLowerAlpha);
        inner.setIndent(2);
        cursor.insertBlock();
        cursor.createList(inner);
        cursor.insertText(u"tres"_s, coloured);
    }
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertBlock(QTextBlockFormat());
    expectKept(document);

    QTextDocument table;
    QTextCursor cells(&table);
    QTextTable *sheet = cells.insertTable(2, 2);
    for (int i = 0; i < 4; ++i)
        sheet->cellAt(i / 2, i % 2).firstCursorPosition().insertText(u"celda %1"_s.arg(i));
    EXPECT_TRUE(Read(richtext::write(table))
                    .document.toPlainText()
                    .contains(u"celda 0\tcelda 1\ncelda 2\tcelda 3"_s));
}

TEST(RichText, aFileOfAnotherWordProcessor)
{
    QFile file(QStringLiteral(TEST_DATA "/richtext/libreoffice.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const Read in(file.readAll());
    EXPECT_EQ(seen(in.document), u"|[b:Ecocardiograma de D'Amico Luz — ñandú]\n"
                                 "Aurícula [i:izquierda] [u:normal], [#cc000018:fracción 62 %] ≥ 55 Ω\n"
                                 ". Válvula mitral\n"
                                 ". Válvula aórtica\n"
                                 "1. Repetir\n"
                                 "2. Controlar\n"
                                 ">a. presión\n"
                                 "><imagen 48x32>\n"
                                 "DDVI\t45 mm\n"
                                 "DSVI\t28 mm\n"
                                 "=Fin {llaves} \\barra 😀"_s);
    EXPECT_TRUE(in.reading.complete);
    EXPECT_EQ(in.reading.picturesLeftOut, 0);
    expectKept(in.document);
}

TEST(RichText, whatFloatsAndStandsBelowIsReadWhereItIsAnchored)
{
    QFile file(QStringLiteral(TEST_DATA "/richtext/libreoffice_cuadros.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const Read in(file.readAll());
    EXPECT_EQ(seen(in.document), u"[b18:Título grande]\n"
                                 "<imagen 75.6x37.7333>Antes después[10:\tnota]\n"
                                 "En un cuadro\n"
                                 "\n"
                                 "[u#000080:enlace] fin"_s);
    EXPECT_TRUE(in.reading.complete);
    EXPECT_EQ(in.reading.picturesLeftOut, 0);
    expectKept(in.document);
}

/// By hand, with SANIRELL_SOFFICE set to the program: what we write reads the same in another word processor,
/// and what it makes of that reads the same here.
TEST(RichText, anotherWordProcessorReadsOurs)
{
    const QString program = qEnvironmentVariable("SANIRELL_SOFFICE");
    if (program.isEmpty())
        GTEST_SKIP() << "SANIRELL_SOFFICE names no word processor";
    const QTemporaryDir folder;
    QFile theirs(QStringLiteral(TEST_DATA "/richtext/libreoffice.rtf"));
    ASSERT_TRUE(theirs.open(QIODevice::ReadOnly));
    const Read in(theirs.readAll());
    QFile ours(folder.filePath(u"nuestro.rtf"_s));
    ASSERT_TRUE(ours.open(QIODevice::WriteOnly));
    ours.write(richtext::write(in.document));
    ours.close();
    const auto converted = [&](const QString &format, const QString &name) {
        QProcess::execute(program, {u"-env:UserInstallation=file://%1/perfil"_s.arg(folder.path()),
                                    u"--headless"_s, u"--convert-to"_s, format, u"--outdir"_s,
                                    folder.filePath(u"salida"_s), ours.fileName()});
        QFile result(folder.filePath(u"salida/"_s + name));
        EXPECT_TRUE(result.open(QIODevice::ReadOnly)) << qPrintable(result.fileName());
        return result.readAll();
    };
    const Read back(converted(u"rtf"_s, u"nuestro.rtf"_s));
    EXPECT_EQ(seen(back.document), seen(in.document));
    const QString text = QString::fromUtf8(converted(u"txt:Text (encoded):UTF8"_s, u"nuestro.txt"_s));
    for (const char *line : {"Ecocardiograma de D'Amico Luz — ñandú", "1. Repetir", "a. presión",
                             "DDVI\t45 mm", "fracción 62 % ≥ 55 Ω", "Fin {llaves} \\barra 😀"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(line))) << line << "\n" << qPrintable(text);
}
