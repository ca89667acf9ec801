#include "../dao/fixture.h"

#include "platform/reports/error.h"
#include "platform/reports/output.h"
#include "platform/reports/report.h"

#include <QFile>
#include <QImage>
#include <QProcess>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace reports;

namespace
{

constexpr char head[] =
    "<informe titulo='Prueba' papel='A5' margenes='10' cuerpo='10'>"
    "<consulta>SELECT * FROM Ventas WHERE {{seleccion}} ORDER BY Grupo, Numero</consulta>";
constexpr char columns[] = "<columnas total='Total'>"
                           "<columna titulo='Número' ancho='20'>{{Numero}}</columna>"
                           "<columna titulo='Nombre'>{{Nombre}}</columna>"
                           "<columna titulo='Importe' ancho='25' alinea='derecha' total='suma'>"
                           "{{Importe|#,##0.00}}</columna></columnas>";

class ReportTest : public DaoTest
{
protected:
    void SetUp() override
    {
        DaoTest::SetUp();
        db.execute(
            u"CREATE TABLE Ventas (Grupo TEXT(10), Numero LONG, Nombre TEXT(255), Importe CURRENCY, Fecha DATE)"_s);
    }

    void fill(int rows, const QString &name = u"Nombre"_s)
    {
        dao::Batch batch(db);
        for (int i = 0; i < rows; ++i)
            db.execute(
                u"INSERT INTO Ventas (Grupo, Numero, Nombre, Importe) VALUES ('%1', %2, '%3', 0.1)"_s.arg(
                    QString(QChar(u'A' + i * 3 / rows)), QString::number(i), name));
        batch.commit();
    }

    Report made(const QByteArray &body, const QString &formula = {}, const Parameters &parameters = {})
    {
        const QString content = QString::fromUtf8(head + body + "</informe>");
        return Report(parseReportFile(content, u"prueba.rpt"_s), db, formula, parameters);
    }

    static QString textOf(Report &report, int page)
    {
        QStringList texts;
        for (const Report::Reading &reading : report.read(page))
            texts += reading.text;
        return texts.join(u" / ");
    }

    /// All that stands on the pages, a line for each page.
    static QStringList pages(Report &report)
    {
        report.layOut([](int) { return true; });
        QStringList all;
        for (int page = 0; report.hasPage(page); ++page)
            all += textOf(report, page);
        return all;
    }
};

QString failure(const char *content)
{
    try {
        parseReportFile(QString::fromUtf8(content), u"carpeta/mala.rpt"_s);
        return u"read"_s;
    } catch (const Error &error) {
        return error.description();
    }
}

} // namespace

TEST_F(ReportTest, groupsHaveTheirHeadsTotalsAndExactMoney)
{
    fill(6);
    Report report =
        made(QByteArray("<encabezado>{{titulo}} {{pagina}}/{{paginas}} {{quien}}</encabezado>"
                        "<grupo por='Grupo' total='De {{Grupo}}'><cabeza>Grupo {{Grupo}}</cabeza>"
                        "<pie>{{cantidad(Numero)}} de {{Grupo}}, hasta {{maximo(Numero)}}</pie></grupo>") +
                 columns + "<resumen>{{suma(Importe)|0.0000}}</resumen>",
             u"{Ventas.Numero} >= 1"_s, {{u"quien"_s, u"D'Angelo & Cía"_s}});
    EXPECT_EQ(
        pages(report),
        QStringList(
            u"Prueba 1/1 D'Angelo & Cía / Número\tNombre\tImporte / Grupo A / 1\tNombre\t0,10 / De "
            "A\t\t0,10 / 1 de A, hasta 1 / Grupo B / 2\tNombre\t0,10 / 3\tNombre\t0,10 / De B\t\t0,20 / "
            "2 de B, hasta 3 / Grupo C / 4\tNombre\t0,10 / 5\tNombre\t0,10 / De C\t\t0,20 / 2 de C, hasta "
            "5 / Total\t\t0,50 / 0,5000"_s));
}

TEST_F(ReportTest, eachPageHasItsTitlesAndNoRowIsLostOrTwice)
{
    fill(300);
    Report report = made(QByteArray("<encabezado>Página {{pagina}} de {{paginas}}</encabezado>"
                                    "<grupo por='Grupo' salto='si' repite='si'><cabeza>Grupo {{Grupo}}"
                                    "{{#continua}} (continúa){{/continua}}</cabeza></grupo>") +
                         columns + "<pie>pie</pie>");
    const QStringList all = pages(report);
    ASSERT_GT(all.size(), 6);
    qint64 expected = 0;
    for (int page = 0; page < all.size(); ++page) {
        const QStringList parts = all[page].split(u" / "_s);
        EXPECT_EQ(parts.first(), u"Página %1 de %2"_s.arg(page + 1).arg(all.size()));
        EXPECT_EQ(parts.last(), u"pie"_s);
        EXPECT_EQ(parts.count(u"Número\tNombre\tImporte"_s), 1);
        int rows = 0;
        for (const QString &part : parts)
            if (part.endsWith(u"\tNombre\t0,10"_s)) {
                EXPECT_EQ(part.section(u'\t', 0, 0).toLongLong(), expected++);
                ++rows;
            }
        EXPECT_GT(rows, 0) << all[page].toStdString();
        const bool begins = (expected - rows) % 100 == 0;
        EXPECT_EQ(all[page].contains(u"(continúa)"), !begins) << all[page].toStdString();
        EXPECT_LE(expected, ((expected - rows) / 100 + 1) * 100); // one group a page
    }
    EXPECT_EQ(expected, 300);
}

TEST_F(ReportTest, aPageAskedForAgainReadsTheSame)
{
    fill(200);
    Report report = made(QByteArray("<grupo por='Grupo' total='De {{Grupo}}'/>") + columns);
    const QStringList once = pages(report);
    for (int page = static_cast<int>(once.size()) - 1; page >= 0; --page)
        EXPECT_EQ(textOf(report, page), once[page]);
}

TEST_F(ReportTest, anEmptySelectionSaysSoBelowItsTitles)
{
    Report report = made(QByteArray("<encabezado>Cabeza</encabezado>") + columns + "<resumen>Suma</resumen>");
    EXPECT_EQ(pages(report), QStringList(u"Cabeza / Número\tNombre\tImporte / Sin datos"_s));
}

TEST_F(ReportTest, theCaptionOfTotalsHasTheRoomBeforeThem)
{
    fill(3);
    Report report = made("<columnas total='Total de las ventas: {{cantidad(Numero)}}'>"
                         "<columna ancho='10' alinea='derecha'>{{Numero}}</columna>"
                         "<columna>{{Nombre}}</columna>"
                         "<columna ancho='20' total='suma'>{{Importe|0.0}}</columna></columnas>");
    const std::vector<Report::Reading> read = report.read(0);
    const Report::Reading &row = read[read.size() - 2], &totals = read.back();
    EXPECT_EQ(totals.text, u"Total de las ventas: 3\t\t0,3"_s);
    EXPECT_EQ(totals.place.height(), row.place.height());
}

TEST_F(ReportTest, whatIsHigherThanItsPageGoesOnOnTheNext)
{
    fill(2, u"palabras "_s.repeated(25));
    db.execute(u"ALTER TABLE Ventas ADD COLUMN Nota MEMO"_s);
    db.execute(u"UPDATE Ventas SET Nota = '%1'"_s.arg(u"Una línea de la nota.\n"_s.repeated(200)));
    Report inColumns = made("<columnas><columna titulo='Nota' ancho='50'>{{Nota}}</columna>"
                            "<columna titulo='Nombre'>{{Nombre}}</columna></columnas>");
    EXPECT_GE(pages(inColumns).size(), 8);
    Report inBands = made("<detalle><p>{{Numero}}</p><p>{{Nota}}</p></detalle>");
    EXPECT_GE(pages(inBands).size(), 8);
}

TEST_F(ReportTest, valuesStandAsTheyAreWhateverTheirSigns)
{
    db.execute(u"INSERT INTO Ventas (Numero, Nombre) VALUES (1, '<Sin Asignar> & {{Numero}} D''Angelo')"_s);
    Report report =
        made("<detalle>{{#Nombre}}[{{Nombre}}]{{/Nombre}}{{^Grupo}} sin grupo{{/Grupo}}</detalle>");
    EXPECT_EQ(pages(report), QStringList(u"[<Sin Asignar> & {{Numero}} D'Angelo] sin grupo"_s));
}

TEST_F(ReportTest, aBlankFormNeedsNoQuery)
{
    Report report(
        parseReportFile(u"<informe titulo='Ficha'><detalle>Nombre: ____ {{hoy}}</detalle></informe>"_s, {}),
        db, {}, {{u"hoy"_s, u"ayer"_s}});
    EXPECT_EQ(pages(report), QStringList(u"Nombre: ____ ayer"_s));
}

TEST_F(ReportTest, aBillHasItsHeadItsLinesAndItsTotalOnPagesOfItsOwn)
{
    fill(120); // three bills of 40 lines, more than a page of this size holds
    Report report =
        made("<encabezado>Consultorio</encabezado>"
             "<grupo por='Grupo' salto='si' repite='si' total='Total de la factura {{Grupo}}: "
             "{{cantidad(Numero)}} prestaciones'><cabeza><table width='100%' border='1'><tr>"
             "<td>Factura {{Grupo}}{{#continua}} (sigue){{/continua}}</td><td>{{cliente}}</td></tr></table>"
             "</cabeza><pie><p style='margin-top:40px'>Firma {{suma(Importe)|0.00}}</p></pie></grupo>"
             "<columnas titulos='grupo' total='Todas'>"
             "<columna titulo='Nº' ancho='12' alinea='derecha'>{{Numero}}</columna>"
             "<columna titulo='Prestación'>{{Nombre}}</columna>"
             "<columna titulo='Importe' ancho='20' alinea='derecha' total='suma'>{{Importe|0.00}}</columna>"
             "</columnas>",
             {}, {{u"cliente"_s, u"Mutual & Cía"_s}});
    const QStringList all = pages(report);
    ASSERT_EQ(all.size(), 6);
    for (int bill = 0; bill < 3; ++bill) {
        const QString letter(QChar(u'A' + bill)), end = u"\tNombre\t0,10"_s;
        const QString first = all[2 * bill], second = all[2 * bill + 1];
        EXPECT_TRUE(first.startsWith(
            u"Consultorio / \nFactura %1\nMutual & Cía\n / Nº\tPrestación\tImporte / %2\t"_s.arg(letter).arg(
                40 * bill)))
            << first.toStdString();
        EXPECT_TRUE(second.startsWith(u"Consultorio / \nFactura %1 (sigue)\n"_s.arg(letter)))
            << second.toStdString();
        EXPECT_EQ(first.count(end) + second.count(end), 40);
        EXPECT_TRUE(
            second.contains(u" / Total de la factura %1: 40 prestaciones\t\t4,00 / Firma 4,00"_s.arg(letter)))
            << second.toStdString();
    }
    EXPECT_TRUE(all.last().endsWith(u"Todas\t\t12,00"_s)) << all.last().toStdString();
}

TEST_F(ReportTest, theTitlesStandAboveTheHeadsThatGoOn)
{
    fill(120);
    Report report =
        made(QByteArray("<grupo por='Grupo' repite='si'><cabeza>Grupo {{Grupo}}</cabeza></grupo>") + columns);
    const QStringList all = pages(report);
    for (int page = 0; page < 2; ++page)
        EXPECT_TRUE(all[page].startsWith(u"Número\tNombre\tImporte / Grupo A / "_s))
            << all[page].toStdString();
}

TEST_F(ReportTest, boxesOfABlankFormAreDrawn)
{
    Report report(parseReportFile(u"<informe titulo='Ficha' papel='A5' margenes='10'><detalle><h1>Ficha</h1>"
                                  "<table width='100%' border='1' cellspacing='0'>"
                                  "<tr><td width='60%'>Nombre</td><td>Fecha</td></tr>"
                                  "<tr><td colspan='2'>Observaciones<br/><br/><br/><br/></td></tr></table>"
                                  "</detalle></informe>"_s,
                                  {}),
                  db, {}, {});
    const QSize size = (report.pageSize() / 10).toSize();
    QImage page(size, QImage::Format_Grayscale8);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(0.1, 0.1);
    report.paint(painter, 0);
    painter.end();
    const auto darkAlong = [&](int y) {
        int dark = 0;
        for (int x = 0; x < size.width(); ++x)
            dark += qGray(page.pixel(x, y)) < 200;
        return dark;
    };
    std::vector<int> rules; // rows of dots that a line crosses from margin to margin
    for (int y = 0; y < size.height(); ++y)
        if (darkAlong(y) > size.width() * 3 / 4 && (rules.empty() || y > rules.back() + 3))
            rules.push_back(y);
    ASSERT_GE(rules.size(), 3u);
    EXPECT_GT(rules.back() - rules.front(), 40); // the lines left blank for a hand
}

TEST_F(ReportTest, aDamagedFileTellsLineAndColumn)
{
    EXPECT_TRUE(failure("<informe>\n  <detalle>uno</detal>\n</informe>")
                    .contains(u"mala.rpt no se entiende (línea 2"));
    EXPECT_TRUE(
        failure("<informe>\n\n<pies/></informe>").contains(u"línea 3, columna 7): <pies> no se conoce"));
    EXPECT_TRUE(failure("<informe papel='A0'/>").contains(u"«A0» no se conoce; puede ser A4"));
    EXPECT_TRUE(failure("<informe margenes='300'/>").contains(u"«300» no es una medida"));
    EXPECT_TRUE(failure("<informe>\n<detalle>{{#Sexo}}x</detalle></informe>").contains(u"línea 2"));
    EXPECT_TRUE(failure("<informe><detalle>{{Sexo</detalle></informe>").contains(u"llaves"));
    EXPECT_TRUE(failure("<informe><detalle>uno").contains(u"cortado"));
    EXPECT_TRUE(failure("no es un informe").contains(u"<informe>"));
    EXPECT_TRUE(failure("<!DOCTYPE x [<!ENTITY a 'b'>]><informe/>").contains(u"DOCTYPE"));
    EXPECT_THROW(readReportFile(u"/no/hay.rpt"_s), Error);

    try {
        made("\n<columnas>\n<columna>{{Nombe}}</columna></columnas>");
        FAIL();
    } catch (const Error &error) {
        EXPECT_TRUE(error.description().contains(u"línea 3, columna 10): no se conoce «Nombe»"))
            << error.description().toStdString();
    }
    EXPECT_THROW(made("<detalle>x</detalle>", u"{Ventas.Precio} = 1"_s), Error);
    EXPECT_THROW(made("<detalle>x</detalle>", u"{Ventas.Numero} ="_s), Error);
}

TEST_F(ReportTest, aPdfIsWholeOrIsNotThere)
{
    fill(100);
    Report report = made(QByteArray("<encabezado>{{pagina}} de {{paginas}}</encabezado>") + columns);
    const QString path = folder.filePath(u"informe.pdf"_s);
    printing::Choice choice;
    choice.file = path;
    EXPECT_FALSE(print(report, choice, [](qint64 done) { return done < 1; }));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(print(report, choice));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    QProcess text;
    text.start(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    ASSERT_TRUE(text.waitForFinished());
    const QString read = QString::fromUtf8(text.readAllStandardOutput());
    EXPECT_TRUE(read.contains(u"Número"_s)) << read.toStdString();
    EXPECT_TRUE(read.contains(u"1 de %1"_s.arg(report.pagesKnown())));
    EXPECT_EQ(read.count(u'\f'), report.pagesKnown());

    choice.file = folder.filePath(u"no hay/informe.pdf"_s);
    EXPECT_THROW(print(report, choice), basic::Error);
}

TEST_F(ReportTest, aFullDiskLeavesNoHalfFile)
{
    fill(3000);
    const auto fails = [&](const auto &write) {
        // A file may not grow beyond this: what a full disk is for whoever writes.
        const pid_t child = fork();
        if (child == 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit small{8192, 8192};
            setrlimit(RLIMIT_FSIZE, &small);
            try {
                write();
            } catch (const basic::Error &) {
                _exit(1);
            }
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 1;
    };
    Report report = made(columns);
    EXPECT_TRUE(fails([&] { print(report, {{}, folder.filePath(u"a.pdf"_s)}); }));
    EXPECT_TRUE(fails([&] { writeCsv(listing(report), folder.filePath(u"a.csv"_s)); }));
    EXPECT_TRUE(fails([&] { writeSpreadsheet(listing(report), {}, folder.filePath(u"a.xlsx"_s)); }));
    EXPECT_EQ(QDir(folder.path()).entryList({u"a.*"_s}), QStringList());
}

TEST_F(ReportTest, listsGoToOtherProgramsAsWhatTheyAre)
{
    fill(3);
    db.execute(u"UPDATE Ventas SET Nombre = '=HYPERLINK(\"x\";\"y\")' where Numero = 1"_s);
    db.execute(u"UPDATE Ventas SET Fecha = cdate('15/03/2024') where Numero = 2"_s);
    dao::Recordset rows =
        db.openRecordset(u"SELECT Numero, Nombre, Importe, Fecha FROM Ventas ORDER BY Numero"_s);
    const QString csv = folder.filePath(u"lista.csv"_s), book = folder.filePath(u"lista.xlsx"_s);
    ASSERT_TRUE(writeCsv(listing(rows), csv));
    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\xEF\xBB\xBFNumero;Nombre;Importe;Fecha\r\n0;Nombre;0,1;\r\n"
                                         "1;\"'=HYPERLINK(\"\"x\"\";\"\"y\"\")\";0,1;\r\n"
                                         "2;Nombre;0,1;15/03/2024\r\n"));

    ASSERT_TRUE(writeSpreadsheet(listing(rows), u"Lista"_s, book));
    QProcess unzip;
    unzip.start(u"unzip"_s, {u"-p"_s, book, u"xl/worksheets/sheet1.xml"_s});
    ASSERT_TRUE(unzip.waitForFinished());
    const QString sheet = QString::fromUtf8(unzip.readAllStandardOutput());
    EXPECT_TRUE(sheet.contains(u"<v>45366</v>"_s)); // 15/03/2024
    EXPECT_TRUE(sheet.contains(u"<v>0.1</v>"_s));
    EXPECT_FALSE(sheet.contains(u"<f>"_s));

    EXPECT_FALSE(writeSpreadsheet(listing(rows), u"Lista"_s, folder.filePath(u"no.xlsx"_s),
                                  [](qint64) { return false; }));
    EXPECT_EQ(QDir(folder.path()).entryList({u"no.xlsx*"_s}), QStringList());
    EXPECT_THROW(writeCsv(listing(rows), u"/no/hay/lista.csv"_s), Error);
    EXPECT_THROW(writeSpreadsheet(listing(rows), {}, u"/no/hay/lista.xlsx"_s), Error);
}
