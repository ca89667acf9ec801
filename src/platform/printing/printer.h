#pragma once

#include <QFont>
#include <QImage>
#include <QPageLayout>
#include <QString>

#include <memory>
#include <optional>

class QPagedPaintDevice;
class QPainter;

/// Paper. A printer is one of the system's, or a PDF file; when the environment variable SANIRELL_IMPRESORA
/// names a folder, every document goes there as a numbered PDF file.
namespace printing
{

/// Where a document is printed.
struct Choice {
    QString printer{}; ///< a system printer's name; empty for a PDF file
    QString file{};    ///< the PDF file
    int copies = 1;
    QString name{}; ///< what the document is called: proposed for the file
};

/// The printer dialogue, "Imprimir" and "Cancelar", for a document of that name; nothing when cancelled.
std::optional<Choice> chooserDialog(const QString &document,
                                    const QString &title = QStringLiteral("Imprimir"));
/// The default printer, or a PDF file asked for when there is none; nothing when the person cancels that.
std::optional<Choice> defaultChoice(const QString &document);

/// Pages being printed, of a size of their own. A file gets its name when it is finished: one that is left
/// unfinished, or that the disk does not take whole, is not there. Throws basic::Error when the printer or
/// the file refuses.
class Job
{
public:
    Job(const Choice &choice, const QString &name, const QPageLayout &page);
    ~Job();

    QPainter &painter(); ///< of the page that is open, in the device's dots, from the corner of the paper
    bool begun() const;  ///< a page was taken
    QPagedPaintDevice &device() const;
    void newPage();
    void finish();

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

/// A document being printed: text lines from the top margin downwards in the current font, pictures at the
/// current position in their natural size (shrunk to the page if larger), page breaks where they fall.
/// Throws basic::Error when the printer or the file refuses.
class Document
{
public:
    Document(const Choice &choice, const QString &name, bool landscape = false);
    ~Document();

    void setFont(const QFont &font);
    void print(const QString &text); ///< wraps at the margin; each line feed starts a line
    void paintPicture(const QImage &image, double widthTwips, double heightTwips);
    void paintPage(const QImage &image); ///< as large as the page holds, keeping its shape
    void newPage();
    void endDoc();

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace printing
