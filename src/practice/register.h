#pragma once

namespace practice
{

/// Registers the windows and operations of this subsystem.
void registerScreens();

} // namespace practice
