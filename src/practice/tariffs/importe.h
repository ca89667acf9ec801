#pragma once

#include "platform/basic/value.h"

#include <optional>

/// Amounts of money as a person types and reads them.
namespace importes
{

/// "1500,50" is 1500.5; nothing for what is no number, and for more money than a column holds.
std::optional<basic::Currency> escrito(QStringView texto);

/// With the sign of the currency and two decimals; a Null counts as 0.
QString enMoneda(const basic::Value &importe);

/// For a field where it is typed over: two decimals, or the four it has.
QString paraEditar(const basic::Value &importe);

} // namespace importes
