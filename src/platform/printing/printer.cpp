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
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSaveFile>
#include <QSpinBox>
#include <QTextLayout>

namespace printing
{

namespace
{

constexpr int printerError = 482;
constexpr double marginMm = 15;
constexpr int pdfResolution = 1200;
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

QString notPrinting(const QString &printer)
{
    return QStringLiteral(
               "Error de impresora: «%1» no está disponible. Verifique que esté encendida y conectada, "
               "o elija otra.")
        .arg(printer);
}

QString askForPdf(const QString &name)
{
    QString proposal = name.isEmpty() ? QStringLiteral("documento") : name;
    proposal.replace(u'/', u'-');
    return forms::saveFileDialog(QStringLiteral("Guardar como PDF"),
                                 QDir::home().filePath(proposal + QStringLiteral(".pdf")),
                                 QStringLiteral("Archivo PDF (*.pdf)"));
}

} // namespace

std::optional<Choice> chooserDialog(const QString &document, const QString &title)
{
    Choice choice{.name = document};
    QDialog dialogue(QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                       : QApplication::activeWindow());
    dialogue.setWindowTitle(title);
    forms::markAsBox(dialogue, QStringLiteral("Impresora :"));
    auto *printers = new QComboBox;
    printers->setObjectName(QStringLiteral("Impresoras"));
    printers->addItems(QPrinterInfo::availablePrinterNames());
    printers->setCurrentText(QPrinterInfo::defaultPrinterName());
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
        return std::nullopt;
    choice.copies = copies->value();
    const bool pdf = printers->currentIndex() == printers->count() - 1;
    choice.printer = pdf ? QString() : printers->currentText();
    if (!pdf || !documentFolder().isEmpty())
        return choice;
    choice.file = askForPdf(document);
    return choice.file.isEmpty() ? std::nullopt : std::optional(choice);
}

std::optional<Choice> defaultChoice(const QString &document)
{
    Choice choice{.printer = documentFolder().isEmpty() ? QPrinterInfo::defaultPrinterName() : QString(),
                  .name = document};
    if (!choice.printer.isEmpty() || !documentFolder().isEmpty())
        return choice;
    choice.file = askForPdf(document);
    return choice.file.isEmpty() ? std::nullopt : std::optional(choice);
}

struct Job::Private {
    std::unique_ptr<QSaveFile> file; ///< of a PDF
    std::unique_ptr<QPagedPaintDevice> device;
    QPainter painter;

    QPrinter *printer() const { return file ? nullptr : static_cast<QPrinter *>(device.get()); }

    /// The print system drops a job silently when its queue has gone since it was chosen.
    bool printerTook() const
    {
        return printer()->printerState() != QPrinter::Error &&
               !QPrinterInfo::printerInfo(printer()->printerName()).isNull();
    }

    [[noreturn]] void fail() const
    {
        throw basic::Error(printerError, file ? QStringLiteral("No se pudo guardar el archivo %1: %2")
                                                    .arg(file->fileName(), file->errorString())
                                              : notPrinting(printer()->printerName()));
    }

    void openFile(const QString &path, const QString &name)
    {
        file = std::make_unique<QSaveFile>(path);
        if (!file->open(QIODevice::WriteOnly))
            throw basic::Error(printerError, QStringLiteral("No se puede escribir el archivo %1.").arg(path));
        // What is printed of a patient is for whoever printed it.
        file->setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        auto writer = std::make_unique<QPdfWriter>(file.get());
        writer->setTitle(name);
        writer->setCreator(QStringLiteral("Sanirell!"));
        writer->setResolution(pdfResolution);
        device = std::move(writer);
    }

    void openPrinter(const Choice &choice, const QString &name)
    {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setDocName(name);
        printer->setCreator(QStringLiteral("Sanirell!"));
        printer->setPrinterName(choice.printer);
        if (!printer->isValid())
            throw basic::Error(printerError, notPrinting(choice.printer));
        printer->setCopyCount(choice.copies);
        printer->setFullPage(true);
        device = std::move(printer);
    }
};

Job::Job(const Choice &choice, const QString &name, const QPageLayout &page) : d_(std::make_unique<Private>())
{
    const QString folder = documentFolder();
    const QString file = choice.file.isEmpty() && !folder.isEmpty() ? nextDocument(folder) : choice.file;
    if (file.isEmpty())
        d_->openPrinter(choice, name);
    else
        d_->openFile(file, name);
    QPageLayout layout = page;
    layout.setMode(QPageLayout::FullPageMode);
    d_->device->setPageLayout(layout);
}

Job::~Job()
{
    if (!d_->painter.isActive())
        return;
    if (QPrinter *printer = d_->printer())
        printer->abort();
    if (d_->file)
        d_->file->cancelWriting();
    d_->painter.end();
}

/// The paper is taken with the first thing put on it: a document without content prints no page.
QPainter &Job::painter()
{
    if (!d_->painter.isActive()) {
        if (!d_->painter.begin(d_->device.get()))
            d_->fail();
        d_->painter.setRenderHint(QPainter::SmoothPixmapTransform);
    }
    return d_->painter;
}

bool Job::begun() const
{
    return d_->painter.isActive();
}

QPagedPaintDevice &Job::device() const
{
    return *d_->device;
}

void Job::newPage()
{
    painter();
    if (!d_->device->newPage())
        d_->fail();
}

void Job::finish()
{
    if (!begun())
        return;
    const bool ended = d_->painter.end();
    const bool taken = d_->file ? d_->file->commit() : d_->printerTook();
    if (!ended || !taken)
        d_->fail();
}

struct Document::Private {
    Job job;
    QFont font{QStringLiteral("DejaVu Sans"), 10};
    double y = 0;          // from the top margin, in device pixels
    bool pageUsed = false; // something stands on the current page

    Private(const Choice &choice, const QString &name, const QPageLayout &page) : job(choice, name, page) {}

    int resolution() const { return job.device().logicalDpiY(); }
    QRectF area() const
    {
        QPageLayout layout = job.device().pageLayout();
        layout.setMode(QPageLayout::StandardMode);
        return layout.paintRectPixels(resolution());
    }
    double width() const { return area().width(); }
    double height() const { return area().height(); }
    double pixels(double twips) const { return twips * resolution() / 1440.0; }

    QPainter &painter()
    {
        const bool first = !job.begun();
        QPainter &open = job.painter();
        if (first) {
            open.setFont(font);
            open.translate(area().topLeft());
        }
        return open;
    }

    void breakPage()
    {
        painter();
        job.newPage();
        y = 0;
        pageUsed = false;
    }

    void makeRoom(double needed)
    {
        painter();
        if (pageUsed && y + needed > height() + 0.5)
            breakPage();
    }

    void draw(const QImage &image, QSizeF size)
    {
        makeRoom(size.height());
        painter().drawImage(QRectF(QPointF(0, y), size), image);
        y += size.height();
        pageUsed = true;
    }

    void printLine(const QString &line)
    {
        QTextLayout layout(line, font, &job.device());
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
        const double empty = QFontMetricsF(font, &job.device()).lineSpacing();
        if (lines.empty())
            skip(empty);
        for (const QTextLine &piece : lines) {
            makeRoom(piece.height());
            piece.draw(&painter(), QPointF(0, y - piece.y()));
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
    : d_(std::make_unique<Private>(
          choice, name,
          QPageLayout(QPageSize(QPageSize::A4), landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                      QMarginsF(marginMm, marginMm, marginMm, marginMm), QPageLayout::Millimeter)))
{
}

Document::~Document() = default;

void Document::setFont(const QFont &font)
{
    d_->font = font;
    if (d_->job.begun())
        d_->job.painter().setFont(font);
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
    d_->job.finish();
}

} // namespace printing
