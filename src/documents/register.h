#pragma once

namespace documents
{

/// Registers the windows and operations of this subsystem.
void registerScreens();

} // namespace documents
