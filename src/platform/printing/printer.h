#pragma once

#include <QFont>
#include <QImage>
#include <QString>

#include <memory>

class QTextDocument;

/// Paper. A printer is one of the system's, or a PDF file; when the environment variable SANIRELL_IMPRESORA
/// names a folder, every document goes there as a numbered PDF file.
namespace printing
{

/// What the person chose in the printer dialogue.
struct Choice {
    QString printer; ///< a system printer's name; empty for a PDF file
    QString file;    ///< the PDF file
    int copies = 1;
};

/// The printer dialogue: "Imprimir" and "Cancelar"; false when cancelled.
bool chooserDialog(Choice &choice, const QString &title);
/// The default printer, or a PDF file asked for when there is none; false when the person cancels that.
bool defaultChoice(Choice &choice);

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
