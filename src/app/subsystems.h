#pragma once

namespace app
{

/// Makes the windows and operations of every subsystem known, and the help behind F1.
void prepare();

} // namespace app
