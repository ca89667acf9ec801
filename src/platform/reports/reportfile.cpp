#include "platform/reports/reportfile.h"

#include "platform/reports/error.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <iterator>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

struct Paper {
    const char *name;
    QPageSize::PageSizeId id;
};
constexpr Paper papers[] = {
    {"A4", QPageSize::A4},        {"A5", QPageSize::A5},        {"A6", QPageSize::A6},
    {"carta", QPageSize::Letter}, {"oficio", QPageSize::Legal}, {"media carta", QPageSize::Statement},
};

struct NamedAlignment {
    const char *name;
    Qt::AlignmentFlag flag;
};
constexpr NamedAlignment alignments[] = {
    {"izquierda", Qt::AlignLeft}, {"centro", Qt::AlignHCenter}, {"derecha", Qt::AlignRight}};

struct NamedTotal {
    const char *name;
    Total total;
};
constexpr NamedTotal totals[] = {{"suma", Total::Sum},
                                 {"promedio", Total::Mean},
                                 {"cantidad", Total::Count},
                                 {"minimo", Total::Least},
                                 {"maximo", Total::Greatest}};

constexpr QSizeF smallestPaper(30, 30), largestPaper(2000, 2000);
constexpr double defaultMargin = 15, defaultFontSize = 9;

/// Signs by name that HTML has and XML has not.
class HtmlEntities : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &name) override
    {
        static const QHash<QString, QString> signs{
            {u"nbsp"_s, u"\u00a0"_s}, {u"ndash"_s, u"–"_s}, {u"mdash"_s, u"—"_s}, {u"middot"_s, u"·"_s},
            {u"bull"_s, u"•"_s},      {u"deg"_s, u"°"_s},   {u"ordm"_s, u"º"_s},  {u"ordf"_s, u"ª"_s}};
        return signs.value(name);
    }
};

QString atLine(const QString &path, qint64 line, qint64 column, const QString &what)
{
    return u"El archivo de informe %1 no se entiende (línea %2, columna %3): %4."_s.arg(
        QFileInfo(path).fileName(), QString::number(line), QString::number(column), what);
}

class Reader
{
public:
    Reader(const QString &content, const QString &path) : content_(content), xml_(content)
    {
        xml_.setEntityResolver(&entities_);
        file_.path = path;
        file_.content = content;
    }

    ReportFile read()
    {
        while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::StartElement)
            if (xml_.isDTD())
                fail(u"no se esperaba un DOCTYPE"_s);
        if (xml_.hasError() || xml_.name() != u"informe")
            fail(u"debe empezar con <informe>"_s);
        readPage();
        each([this](QStringView name) { return readPart(name); });
        while (!xml_.atEnd())
            xml_.readNext();
        checkXml();
        if (file_.columns.empty() && file_.headingsInGroup)
            fail(u"faltan las columnas"_s);
        return std::move(file_);
    }

private:
    [[noreturn]] void fail(const QString &what)
    {
        throw Error(Error::ReportFile, atLine(file_.path, xml_.lineNumber(), xml_.columnNumber(), what));
    }

    void checkXml()
    {
        if (xml_.hasError())
            fail(xml_.error() == QXmlStreamReader::PrematureEndOfDocumentError
                     ? u"el archivo está cortado"_s
                     : u"las marcas no están bien formadas"_s);
    }

    /// Reads each element within the one just begun; `take` is false for one that is not known there.
    template <class Take>
    void each(Take take)
    {
        while (xml_.readNextStartElement()) {
            if (!take(xml_.name()))
                fail(u"<%1> no se conoce aquí"_s.arg(xml_.name()));
            checkXml();
        }
        checkXml();
    }

    QString attribute(const char *name, const QString &otherwise = {})
    {
        const QXmlStreamAttributes attributes = xml_.attributes();
        const QLatin1StringView wanted(name);
        return attributes.hasAttribute(wanted) ? attributes.value(wanted).toString().trimmed() : otherwise;
    }

    bool isYes(const char *name)
    {
        const QString value = attribute(name, u"no"_s);
        if (value != u"si" && value != u"sí" && value != u"no")
            fail(u"%1 es «si» o «no»"_s.arg(QLatin1StringView(name)));
        return value != u"no";
    }

    double number(const QString &text, double least, double most)
    {
        bool ok = false;
        const double value = QString(text).replace(u',', u'.').toDouble(&ok);
        if (!ok || value < least || value > most)
            fail(u"«%1» no es una medida posible"_s.arg(text));
        return value;
    }

    template <class Table>
    const auto &named(const Table &table, const QString &name)
    {
        const auto found = std::find_if(std::begin(table), std::end(table), [&](const auto &entry) {
            return name.compare(QString::fromUtf8(entry.name), Qt::CaseInsensitive) == 0;
        });
        if (found != std::end(table))
            return *found;
        QStringList known;
        for (const auto &entry : table)
            known += QString::fromUtf8(entry.name);
        fail(u"«%1» no se conoce; puede ser %2"_s.arg(name, known.join(u", ")));
    }

    void readPage()
    {
        file_.title = attribute("titulo");
        const QString font = attribute("fuente", u"Liberation Sans"_s);
        file_.font = QFont(font);
        file_.font.setPointSizeF(number(attribute("cuerpo", QString::number(defaultFontSize)), 4, 72));
        const QString orientation = attribute("orientacion", u"vertical"_s);
        if (orientation != u"vertical" && orientation != u"horizontal")
            fail(u"la orientación es «vertical» u «horizontal»"_s);
        file_.page = QPageLayout(paper(attribute("papel", u"A4"_s)),
                                 orientation == u"vertical" ? QPageLayout::Portrait : QPageLayout::Landscape,
                                 margins(attribute("margenes", QString::number(defaultMargin))),
                                 QPageLayout::Millimeter);
        const QSizeF room = file_.page.paintRect(QPageLayout::Millimeter).size();
        if (!file_.page.isValid() || room.width() < smallestPaper.width() / 2 ||
            room.height() < smallestPaper.height() / 2)
            fail(u"los márgenes no dejan lugar"_s);
    }

    /// One of the sizes by name, or "120 x 180" in millimetres.
    QPageSize paper(const QString &text)
    {
        const QStringList sides = text.split(u'x');
        if (sides.size() != 2)
            return QPageSize(named(papers, text).id);
        return QPageSize(QSizeF(number(sides[0], smallestPaper.width(), largestPaper.width()),
                                number(sides[1], smallestPaper.height(), largestPaper.height())),
                         QPageSize::Millimeter, text, QPageSize::ExactMatch);
    }

    /// One for all sides, or left, top, right and bottom.
    QMarginsF margins(const QString &text)
    {
        QList<double> sides;
        for (const QString &side : text.split(u' ', Qt::SkipEmptyParts))
            sides += number(side, 0, 200);
        if (sides.size() == 1)
            sides = QList<double>(4, sides.first());
        if (sides.size() != 4)
            fail(u"los márgenes son uno o cuatro números"_s);
        return {sides[0], sides[1], sides[2], sides[3]};
    }

    bool readPart(QStringView name)
    {
        struct Place {
            const char16_t *name;
            Band ReportFile::*band;
        };
        static constexpr Place places[] = {
            {u"portada", &ReportFile::opening}, {u"encabezado", &ReportFile::pageHead},
            {u"pie", &ReportFile::pageFoot},    {u"detalle", &ReportFile::detail},
            {u"resumen", &ReportFile::summary}, {u"vacio", &ReportFile::empty},
        };
        for (const Place &place : places)
            if (name == place.name) {
                file_.*place.band = band();
                return true;
            }
        if (name == u"consulta")
            file_.query = xml_.readElementText().trimmed();
        else if (name == u"estilo")
            file_.style = xml_.readElementText();
        else if (name == u"grupo")
            readGroup();
        else if (name == u"columnas")
            readColumns();
        else
            return false;
        return true;
    }

    Text text(Text::Kind kind, const QString &source)
    {
        try {
            return Text(kind, source);
        } catch (const Error &error) {
            fail(error.description());
        }
    }

    /// A lone name and an expression between braces say the same where only a value can stand.
    Text value(const QString &source)
    {
        return text(Text::Kind::Plain,
                    source.isEmpty() || source.contains(u"{{") ? source : u"{{"_s + source + u"}}"_s);
    }

    /// What stands between the marks of an element, as it is written.
    Band band()
    {
        const qint64 start = xml_.characterOffset();
        xml_.skipCurrentElement();
        checkXml();
        const qint64 end = content_.lastIndexOf(u"</", xml_.characterOffset() - 1);
        return text(Text::Kind::Html, end > start ? content_.sliced(start, end - start) : QString());
    }

    void readGroup()
    {
        Group group;
        group.key = value(attribute("por"));
        if (group.key.isEmpty())
            fail(u"un grupo dice por qué columna se hace: por=\"…\""_s);
        group.newPage = isYes("salto");
        group.repeated = isYes("repite");
        group.totalCaption = text(Text::Kind::Plain, attribute("total"));
        each([&](QStringView name) {
            if (name == u"cabeza")
                group.head = band();
            else if (name == u"pie")
                group.foot = band();
            else
                return false;
            return true;
        });
        file_.groups.push_back(std::move(group));
    }

    void readColumns()
    {
        const QString where = attribute("titulos", u"pagina"_s);
        if (where != u"pagina" && where != u"grupo")
            fail(u"los títulos van en cada «pagina» o en cada «grupo»"_s);
        file_.headingsInGroup = where == u"grupo";
        file_.striped = isYes("rayado");
        file_.totalCaption = text(Text::Kind::Plain, attribute("total"));
        each([this](QStringView name) {
            if (name == u"columna")
                readColumn();
            return name == u"columna";
        });
    }

    void readColumn()
    {
        Column column;
        column.title = attribute("titulo");
        if (const QString width = attribute("ancho"); !width.isEmpty())
            column.width = number(width, 1, largestPaper.width());
        column.alignment = named(alignments, attribute("alinea", u"izquierda"_s)).flag;
        column.bold = isYes("negrita");
        if (const QString total = attribute("total"); !total.isEmpty())
            column.total = named(totals, total).total;
        column.text = text(Text::Kind::Plain, xml_.readElementText());
        if (column.total != Total::None && !column.text.isSingle())
            fail(u"una columna con total tiene una sola expresión"_s);
        file_.columns.push_back(std::move(column));
    }

    const QString content_;
    QXmlStreamReader xml_;
    HtmlEntities entities_;
    ReportFile file_;
};

} // namespace

std::vector<Text *> ReportFile::texts()
{
    std::vector<Text *> all{&opening, &pageHead, &pageFoot, &detail, &summary, &empty, &totalCaption};
    for (Group &group : groups)
        all.insert(all.end(), {&group.key, &group.head, &group.foot, &group.totalCaption});
    for (Column &column : columns)
        all.push_back(&column.text);
    return all;
}

ReportFile readReportFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(Error::ReportFile, u"No se encuentra el archivo de informe %1."_s.arg(path));
    return parseReportFile(QString::fromUtf8(file.readAll()), path);
}

ReportFile parseReportFile(const QString &content, const QString &path)
{
    return Reader(content, path).read();
}

void failAt(const ReportFile &file, const QString &expression, const QString &what)
{
    const QRegularExpression written(u"\\{\\{\\{?\\s*[#^/&]?\\s*"_s + QRegularExpression::escape(expression));
    qsizetype at = file.content.indexOf(written);
    if (at < 0) // a group's key, which needs no braces
        at = qMax<qsizetype>(0, file.content.indexOf(expression));
    const QString before = file.content.first(at);
    throw Error(Error::ReportFile,
                atLine(file.path, before.count(u'\n') + 1, before.size() - before.lastIndexOf(u'\n'), what));
}

} // namespace reports
