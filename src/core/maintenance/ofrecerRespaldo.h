#pragma once

class QWidget;

namespace MODULE11
{

/// Before work that cannot be taken back: asks whether to make a copy of the practice's file first, and makes
/// it in the backup folders (the first is asked for when none is set) under a lock that only reads, so that
/// the base stays open. True when the work may go on: the copy is whole and checked, or the person goes on
/// without one. Called with no batch open; `padre` is the window that asks.
bool ofrecerRespaldo(QWidget *padre);

/// The same once the person has said yes.
bool respaldarAntes();

/// Makes the copy, the base being open, and tells what failed; true when it was made.
bool respaldarAhora();

} // namespace MODULE11
