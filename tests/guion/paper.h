#pragma once

#include <QString>

/// The documents in the folder that stands for the printer, read with the tools of poppler.
namespace guion
{

QString lastDocument();                        ///< empty when nothing was printed
int pageCount(const QString &document);        ///< throws Failure
QString documentText(const QString &document); ///< runs of blanks and line ends as one blank; throws Failure

} // namespace guion
