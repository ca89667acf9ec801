#include "platform/dao/dialect/functions.h"

#include "platform/dao/dialect/names.h"

#include <array>

namespace dao
{

namespace
{

// date, now, time and conversions of a constant never get this far: the binder puts their value in place.
constexpr std::array table{
    FunctionDef{u"Count", 1, 1, Yields::Integer, Takes::Any, true},
    FunctionDef{u"Sum", 1, 1, Yields::Sum, Takes::Any, true},
    FunctionDef{u"Avg", 1, 1, Yields::Average, Takes::Any, true},
    FunctionDef{u"Min", 1, 1, Yields::SameAsFirst, Takes::Any, true},
    FunctionDef{u"Max", 1, 1, Yields::SameAsFirst, Takes::Any, true},
    FunctionDef{u"First", 1, 1, Yields::SameAsFirst, Takes::Any, true},
    FunctionDef{u"Last", 1, 1, Yields::SameAsFirst, Takes::Any, true},

    FunctionDef{u"Date", 0, 0, Yields::Date, Takes::Any},
    FunctionDef{u"Now", 0, 0, Yields::Date, Takes::Any},
    FunctionDef{u"Time", 0, 0, Yields::Date, Takes::Any},
    FunctionDef{u"CDate", 1, 1, Yields::Date, Takes::Date},
    FunctionDef{u"CVDate", 1, 1, Yields::Date, Takes::Date},
    FunctionDef{u"DateValue", 1, 1, Yields::Date, Takes::Date},
    FunctionDef{u"TimeValue", 1, 1, Yields::Date, Takes::Date},
    FunctionDef{u"Year", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Month", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Day", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Hour", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Minute", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Second", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"Weekday", 1, 1, Yields::Integer, Takes::Date},
    FunctionDef{u"DateSerial", 3, 3, Yields::Date, Takes::Number},
    FunctionDef{u"DateDiff", 3, 3, Yields::Integer, Takes::Any},
    FunctionDef{u"DateAdd", 3, 3, Yields::Date, Takes::Any},

    FunctionDef{u"Left", 2, 2, Yields::Text, Takes::Any},
    FunctionDef{u"Right", 2, 2, Yields::Text, Takes::Any},
    FunctionDef{u"Mid", 2, 3, Yields::Text, Takes::Any},
    FunctionDef{u"Len", 1, 1, Yields::Integer, Takes::Text},
    FunctionDef{u"InStr", 2, 3, Yields::Integer, Takes::Any},
    FunctionDef{u"Trim", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"LTrim", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"RTrim", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"UCase", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"LCase", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"Str", 1, 1, Yields::Text, Takes::Number},
    FunctionDef{u"CStr", 1, 1, Yields::Text, Takes::Text},
    FunctionDef{u"Format", 1, 2, Yields::Text, Takes::Any},

    FunctionDef{u"Val", 1, 1, Yields::Double, Takes::Text},
    FunctionDef{u"CDbl", 1, 1, Yields::Double, Takes::Number},
    FunctionDef{u"CInt", 1, 1, Yields::Integer, Takes::Number},
    FunctionDef{u"CLng", 1, 1, Yields::Integer, Takes::Number},
    FunctionDef{u"Int", 1, 1, Yields::Integer, Takes::Number},
    FunctionDef{u"Fix", 1, 1, Yields::Integer, Takes::Number},
    FunctionDef{u"Abs", 1, 1, Yields::SameAsFirst, Takes::Any},
    FunctionDef{u"Sgn", 1, 1, Yields::Integer, Takes::Number},
    FunctionDef{u"Sqr", 1, 1, Yields::Double, Takes::Number},
    FunctionDef{u"Round", 1, 2, Yields::Double, Takes::Number},

    FunctionDef{u"IIf", 3, 3, Yields::SameAsLast, Takes::Any},
    FunctionDef{u"Nz", 2, 2, Yields::SameAsLast, Takes::Any},
    FunctionDef{u"IsNull", 1, 1, Yields::Condition, Takes::Any},
    FunctionDef{u"IsDate", 1, 1, Yields::Condition, Takes::Text},
    FunctionDef{u"IsNumeric", 1, 1, Yields::Condition, Takes::Text},
};

} // namespace

std::span<const FunctionDef> functions()
{
    return table;
}

int functionNamed(QStringView name)
{
    for (size_t i = 0; i < table.size(); ++i) {
        if (sameName(table[i].name, name))
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace dao
