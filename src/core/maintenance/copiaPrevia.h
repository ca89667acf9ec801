#pragma once

#include "platform/forms/controls.h"

namespace MODULE11
{

/// Makes a copy of the practice's file in the backup folders (the first is asked for when none is set), under
/// a lock that only reads, so that the base stays open, and tells what failed; true when it was made. Called
/// with no batch open.
bool respaldarAhora();

} // namespace MODULE11

/// Offers a copy of the practice's file before work that cannot be taken back. It is marked where the
/// workstation keeps backups.
class CopiaPrevia : public forms::CheckBox
{
    Q_OBJECT
public:
    explicit CopiaPrevia(const QString &nombre);

    /// Makes the copy when it is wanted. True when the work may go on: the copy is whole and checked, or the
    /// person goes on without one.
    bool hacer() const;
};
