#pragma once

namespace core
{

/// Registers the windows of this subsystem.
void registerScreens();

} // namespace core
