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
        NotSupported = 3251,  ///< the kind of recordset has no such operation
        NotAggregated = 3122, ///< a column outside the aggregates that is not grouped by
        FieldInIndex = 3280,  ///< a column that an index is over cannot be dropped
        NullKey = 3058,       ///< a primary key without a value
        FileExists = 3204,
        QueryNotUpdatable = 3073,
        Engine = 3000, ///< anything else the engine reports
    };

    using basic::Error::Error;
};

/// The kinds by which the file itself cannot be read or written at the moment, whatever was asked of it.
inline constexpr std::initializer_list<int> fileTrouble = {
    Error::Locked, Error::ReadOnly, Error::DiskFull, Error::FileDamaged, Error::Closed, Error::Engine};

/// The kinds by which a column refuses a value.
inline constexpr std::initializer_list<int> valueRefused = {Error::TypeMismatch, Error::TextTooLong,
                                                            Error::ValueOutOfRange};

} // namespace dao
