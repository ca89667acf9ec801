#include "platform/printing/printer.h"

#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/twips.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QTextLayout>

namespace printing
{

namespace
{

constexpr int printerError = 482;
constexpr double marginMm = 15;
constexpr char folderVariable[] = "SANIRELL_IMPRESORA";

QString documentFolder()
{
    return qEnvironmentVariable(folderVariable);
}

QString nextDocument(const QString &folder)
{
    const QDir dir(folder);
    int number = 1;
    QString file;
    do
        file = dir.filePath(QStringLiteral("doc_%1.pdf").arg(number++, 3, 10, QLatin1Char('0')));
    while (QFileInfo::exists(file));
    return file;
}

QString askForPdf()
{
    return forms::saveFileDialog(QStringLiteral("Guardar como PDF"),
                                 QDir::home().filePath(QStringLiteral("documento.pdf")),
                                 QStringLiteral("Archivo PDF (*.pdf)"));
}

} // namespace

bool chooserDialog(Choice &choice, const QString &title)
{
    QDialog dialogue(QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                       : QApplication::activeWindow());
    dialogue.setWindowTitle(title);
    forms::markAsBox(dialogue, QStringLiteral("Impresora :"));
    auto *printers = new QComboBox;
    printers->setObjectName(QStringLiteral("Impresoras"));
    printers->addItems(QPrinterInfo::availablePrinterNames());
    printers->setCurrentText(choice.printer.isEmpty() ? QPrinterInfo::defaultPrinterName() : choice.printer);
    printers->addItem(QStringLiteral("Archivo PDF"));
    auto *copies = new QSpinBox;
    copies->setObjectName(QStringLiteral("Copias"));
    copies->setRange(1, 99);
    copies->setValue(choice.copies);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("Imprimir"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialogue, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialogue, &QDialog::reject);
    auto *layout = new QFormLayout(&dialogue);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addRow(QStringLiteral("Impresora :"), printers);
    layout->addRow(QStringLiteral("Copias :"), copies);
    layout->addRow(buttons);
    dialogue.setMinimumWidth(380);

    if (dialogue.exec() != QDialog::Accepted)
        return false;
    choice.copies = copies->value();
    const bool pdf = printers->currentIndex() == printers->count() - 1;
    choice.printer = pdf ? QString() : printers->currentText();
    choice.file.clear();
    if (pdf && documentFolder().isEmpty())
        choice.file = askForPdf();
    return !pdf || !choice.file.isEmpty() || !documentFolder().isEmpty();
}

bool defaultChoice(Choice &choice)
{
    choice = {};
    if (!documentFolder().isEmpty())
        return true;
    choice.printer = QPrinterInfo::defaultPrinterName();
    if (choice.printer.isEmpty())
        choice.file = askForPdf();
    return !choice.printer.isEmpty() || !choice.file.isEmpty();
}

struct Document::Private {
    QPrinter printer{QPrinter::HighResolution};
    QPainter painter;
    QFont font{QStringLiteral("DejaVu Sans"), 10};
    double y = 0;          // from the top margin, in device pixels
    bool pageUsed = false; // something stands on the current page

    double width() const { return printer.pageLayout().paintRectPixels(printer.resolution()).width(); }
    double height() const { return printer.pageLayout().paintRectPixels(printer.resolution()).height(); }
    double pixels(double twips) const { return twips * printer.resolution() / 1440.0; }

    /// The paper is taken with the first thing put on it: a document without content prints no page.
    void begin()
    {
        if (painter.isActive())
            return;
        if (!painter.begin(&printer))
            throw basic::Error(printerError, QStringLiteral("Error de impresora."));
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setFont(font);
    }

    void breakPage()
    {
        begin();
        if (!printer.newPage())
            throw basic::Error(printerError, QStringLiteral("Error de impresora."));
        y = 0;
        pageUsed = false;
    }

    void makeRoom(double needed)
    {
        begin();
        if (pageUsed && y + needed > height() + 0.5)
            breakPage();
    }

    void draw(const QImage &image, QSizeF size)
    {
        makeRoom(size.height());
        painter.drawImage(QRectF(QPointF(0, y), size), image);
        y += size.height();
        pageUsed = true;
    }

    void printLine(const QString &line)
    {
        QTextLayout layout(line, font, &printer);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        std::vector<QTextLine> lines;
        for (QTextLine piece = layout.createLine(); piece.isValid(); piece = layout.createLine()) {
            piece.setLineWidth(width());
            lines.push_back(piece);
        }
        layout.endLayout();
        const double empty = QFontMetricsF(font, &printer).lineSpacing();
        if (lines.empty())
            skip(empty);
        for (const QTextLine &piece : lines) {
            makeRoom(piece.height());
            piece.draw(&painter, QPointF(0, y - piece.y()));
            y += piece.height();
            pageUsed = true;
        }
    }

    void skip(double room)
    {
        makeRoom(room);
        y += room;
        pageUsed = true;
    }
};

Document::Document(const Choice &choice, const QString &name, bool landscape)
    : d_(std::make_unique<Private>())
{
    QPrinter &printer = d_->printer;
    printer.setDocName(name);
    printer.setCreator(QStringLiteral("Sanirell!"));
    const QString folder = documentFolder();
    const QString file = folder.isEmpty() ? choice.file : nextDocument(folder);
    if (!file.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
    } else {
        printer.setPrinterName(choice.printer);
        if (!printer.isValid())
            throw basic::Error(printerError, QStringLiteral("Error de impresora."));
        printer.setCopyCount(choice.copies);
    }
    printer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                    QMarginsF(marginMm, marginMm, marginMm, marginMm), QPageLayout::Millimeter));
}

Document::~Document() = default;

void Document::setFont(const QFont &font)
{
    d_->font = font;
    if (d_->painter.isActive())
        d_->painter.setFont(font);
}

void Document::print(const QString &text)
{
    for (const QString &line : text.split(QLatin1Char('\n')))
        d_->printLine(line.endsWith(QLatin1Char('\r')) ? line.chopped(1) : line);
}

void Document::paintPicture(const QImage &image, double widthTwips, double heightTwips)
{
    QSizeF size(d_->pixels(widthTwips), d_->pixels(heightTwips));
    if (size.width() > d_->width() || size.height() > d_->height())
        size.scale(d_->width(), d_->height(), Qt::KeepAspectRatio);
    d_->draw(image, size);
}

void Document::paintPage(const QImage &image)
{
    if (d_->pageUsed)
        d_->breakPage();
    d_->draw(image, QSizeF(image.size()).scaled(d_->width(), d_->height(), Qt::KeepAspectRatio));
}

void Document::newPage()
{
    d_->breakPage();
}

void Document::endDoc()
{
    if (d_->painter.isActive() && !d_->painter.end())
        throw basic::Error(printerError, QStringLiteral("Error de impresora."));
    // What is printed of a patient is for whoever printed it.
    if (const QString file = d_->printer.outputFileName(); !file.isEmpty())
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace printing
