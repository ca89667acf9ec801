#pragma once

namespace forms
{

/// Makes the canvases of the program and their items known to screen readers; once is enough.
void canvasAccess();

} // namespace forms
