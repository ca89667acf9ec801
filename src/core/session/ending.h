#pragma once

#include <functional>

/// The way the program ends.
namespace MODULE11
{

/// Closes the file and every window and leaves the event loop; control returns to the caller, which must
/// return at once.
void terminar();
bool terminado();

/// What leaves the event loop; the application's own unless somebody else runs the loop.
void setAlTerminar(std::function<void()> leave);

} // namespace MODULE11
