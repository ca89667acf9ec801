#pragma once

#include "guion/script.h"
#include "platform/basic/value.h"

namespace guion
{

/// A value of the database in the form of the scripts: 2024-03-15, 10:30:00, 1234.5, si, no, <Null> or text.
QString scriptForm(const basic::Value &value);
QString scriptForm(bool truth);

/// Compares by ==, !=, contiene, <, >, <=, >=: as numbers when both are numbers and the expected one stands
/// without quotes, else as texts. Throws Failure on any other operator.
bool holds(const QString &actual, const QString &op, const Word &expected);

} // namespace guion
