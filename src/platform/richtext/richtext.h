#pragma once

#include <QByteArray>

class QTextDocument;

/// Rich text in files of the RTF format: bold, italic, underlined and struck letters, sizes, fonts, colours,
/// alignment, indents, lists, and PNG and JPEG pictures. Tables are read as lines of text with tabs.
namespace richtext
{

/// What there is to tell a person about a file that was read.
struct Reading {
    bool isRichText = true;  ///< false: no RTF at all, taken as plain text
    bool complete = true;    ///< false: the file ends in the middle, or is nested beyond sense
    int picturesLeftOut = 0; ///< pictures of kinds that cannot be shown, or damaged ones
};

/// Replaces the document's contents by those of the file. Any bytes can be read; only a file larger than any
/// report throws basic::Error.
Reading read(const QByteArray &file, QTextDocument &document);

QByteArray write(const QTextDocument &document);

} // namespace richtext
