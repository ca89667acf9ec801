#pragma once

#include "platform/basic/value.h"

#include <QString>
#include <QStringList>

namespace dao
{

/// A text as a literal of the dialect, quotes included: what a person typed is a value and never a piece of
/// a statement.
QString quoted(const QString &text);

/// A table's name in a statement: in brackets where it is no plain word.
QString tableText(const QString &name);

/// The day in a statement: cdate('15/03/2024').
QString cdate(basic::Date day);
/// The rows whose `column` lies between the two days, both included.
QString period(const QString &column, basic::Date from, basic::Date to);

enum class Match { Beginning, Anywhere };
/// The pattern of LIKE for what a person typed to find something, by the rules of basic::containsTyped():
/// accents and case do not count, and the signs of a pattern mean themselves.
QString typedPattern(const QString &typed, Match where);

/// The tables and saved queries that a SELECT reads from, those of the queries inside it too. Throws Error
/// when it cannot be read.
QStringList tablesNamed(const QString &select);

} // namespace dao
