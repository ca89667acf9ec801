#pragma once

#include <QString>
#include <QTextDocument>

/// Fills the document with Markdown in the dress of the manual.
void dress(QTextDocument &document, const QString &markdown);
