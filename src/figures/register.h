#pragma once

namespace figures
{

/// Registers the windows and operations of this subsystem.
void registerScreens();

} // namespace figures
