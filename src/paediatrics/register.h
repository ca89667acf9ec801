#pragma once

namespace paediatrics
{

/// Registers the windows of this subsystem.
void registerScreens();

} // namespace paediatrics
