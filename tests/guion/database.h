#pragma once

#include "guion/program.h"

/// The script's own connection to the program's database, open for one statement at a time: the program
/// may close, replace or lock the file between two steps.
namespace guion
{

void execute(Program &program, const QString &statement); ///< throws Failure
/// First column of the first row in script form; "<nada>" without a row. Throws Failure.
QString firstValue(Program &program, const QString &select);

} // namespace guion
