#pragma once

namespace clinical
{

/// Registers the windows and operations of this subsystem.
void registerScreens();

} // namespace clinical
