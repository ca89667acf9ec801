#pragma once

namespace specialties
{

/// Registers the windows and operations of this subsystem.
void registerScreens();

} // namespace specialties
