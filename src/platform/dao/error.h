#pragma once

#include "platform/basic/errors.h"

namespace dao
{

/// Failure of the database layer, under the numbers that programs of this dialect know. The description is
/// Spanish, fit for a box, and never holds a password.
class Error : public basic::Error
{
public:
    enum Number {
        NoCurrentRecord = 3021,
        DuplicateKey = 3022,
        FileNotFound = 3024,
        DiskFull = 3026,
        ReadOnly = 3027,
        WrongPassword = 3031,
        TableExists = 3010,
        NotATable = 3078,
        NoEditOpen = 3020,
        IndexNotFound = 3015,
        NoIndexSet = 3019,
        BadParameters = 3061, ///< a name that is no column: "too few parameters"
        SyntaxError = 3075,
        TypeMismatch = 3464,
        AmbiguousName = 3079,
        RecordDeleted = 3167,
        TextTooLong = 3163,
        ValueOutOfRange = 3349,
        FileDamaged = 3340,
        NotADatabase = 3343,
        Locked = 3260,
        IndexExists = 3284,
        ItemNotFound = 3265,
        TableNotFound = 3376,
        FieldExists = 3380,
        FieldNotFound = 3381,
        Closed = 3420,
        Engine = 3000, ///< anything else the engine reports
    };

    using basic::Error::Error;
};

} // namespace dao
