#pragma once

#include <functional>

/// The way the program ends.
namespace MODULE11
{

/// Closes the file and every window and leaves the event loop; control returns to the caller, which must
/// return at once. Work that nobody watches tells by `estado` that it failed.
void terminar(int estado = 0);
bool terminado();
int estadoFinal();

/// What leaves the event loop; the application's own unless somebody else runs the loop.
void setAlTerminar(std::function<void()> leave);

} // namespace MODULE11
