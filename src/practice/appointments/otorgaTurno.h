#pragma once

/// Books the next appointment of the patient whose window is the active one, from today on, in whatever free
/// place of the book has the day and hour chosen.
void OtorgaTurno();
