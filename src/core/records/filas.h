#pragma once

#include "platform/forms/data.h"
#include "platform/forms/form.h"

#include <functional>

/// What a window over the rows of a table does with them.
namespace records
{

/// Sets the columns of the row being added.
using Fill = std::function<void(dao::Recordset &)>;

/// Reads the rows again and stays on the current one; on the first when it is gone.
void reread(forms::Data &rows);
/// Adds a row and stands on it.
void addRow(forms::Data &rows, const Fill &fill);
/// Shows a dialogue that takes a row in, and adds the row when it answers "SI". One that cannot be stored is
/// told, and the dialogue comes again with what was typed.
void capture(forms::Data &rows, forms::Form &dialogue, const Fill &fill);

} // namespace records
