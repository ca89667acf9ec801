#pragma once

#include <QString>

namespace dao
{

/// A text as a literal of the dialect, quotes included: what a person typed is a value and never a piece of
/// a statement.
QString quoted(const QString &text);

} // namespace dao
