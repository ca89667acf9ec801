#include "platform/dao/dialect/functions.h"

#include "platform/dao/dialect/names.h"

#include <array>

namespace dao
{

namespace
{

// date, now, time and conversions of a constant never get this far: the binder puts their value in place.
constexpr std::array table{
    FunctionDef{u"Count", 1, 1, Yields::Integer, Takes::Any, u"count", true},
    FunctionDef{u"Sum", 1, 1, Yields::Sum, Takes::Any, u"sum", true},
    FunctionDef{u"Avg", 1, 1, Yields::Average, Takes::Any, u"avg", true},
    FunctionDef{u"Min", 1, 1, Yields::SameAsFirst, Takes::Any, u"min", true},
    FunctionDef{u"Max", 1, 1, Yields::SameAsFirst, Takes::Any, u"max", true},
    FunctionDef{u"First", 1, 1, Yields::SameAsFirst, Takes::Any, u"d_primero", true},
    FunctionDef{u"Last", 1, 1, Yields::SameAsFirst, Takes::Any, u"d_ultimo", true},

    FunctionDef{u"Date", 0, 0, Yields::Date, Takes::Any, u""},
    FunctionDef{u"Now", 0, 0, Yields::Date, Takes::Any, u""},
    FunctionDef{u"Time", 0, 0, Yields::Date, Takes::Any, u""},
    FunctionDef{u"CDate", 1, 1, Yields::Date, Takes::Date, u"%1"},
    FunctionDef{u"CVDate", 1, 1, Yields::Date, Takes::Date, u"%1"},
    FunctionDef{u"DateValue", 1, 1, Yields::Date, Takes::Date, u"d_piso"},
    FunctionDef{u"TimeValue", 1, 1, Yields::Date, Takes::Date, u"d_hora_del_dia"},
    FunctionDef{u"Year", 1, 1, Yields::Integer, Takes::Date, u"d_anio"},
    FunctionDef{u"Month", 1, 1, Yields::Integer, Takes::Date, u"d_mes"},
    FunctionDef{u"Day", 1, 1, Yields::Integer, Takes::Date, u"d_dia"},
    FunctionDef{u"Hour", 1, 1, Yields::Integer, Takes::Date, u"d_hora"},
    FunctionDef{u"Minute", 1, 1, Yields::Integer, Takes::Date, u"d_minuto"},
    FunctionDef{u"Second", 1, 1, Yields::Integer, Takes::Date, u"d_segundo"},
    FunctionDef{u"Weekday", 1, 1, Yields::Integer, Takes::Date, u"d_dia_semana"},
    FunctionDef{u"DateSerial", 3, 3, Yields::Date, Takes::Number, u"d_fecha"},
    FunctionDef{u"DateDiff", 3, 3, Yields::Integer, Takes::Any, u"d_diferencia"},
    FunctionDef{u"DateAdd", 3, 3, Yields::Date, Takes::Any, u"d_suma_fecha"},

    FunctionDef{u"Left", 2, 2, Yields::Text, Takes::Any, u"d_izquierda"},
    FunctionDef{u"Right", 2, 2, Yields::Text, Takes::Any, u"d_derecha"},
    FunctionDef{u"Mid", 2, 3, Yields::Text, Takes::Any, u"d_medio"},
    FunctionDef{u"Len", 1, 1, Yields::Integer, Takes::Text, u"d_largo"},
    FunctionDef{u"InStr", 2, 3, Yields::Integer, Takes::Any, u"d_posicion"},
    FunctionDef{u"Trim", 1, 1, Yields::Text, Takes::Text, u"trim"},
    FunctionDef{u"LTrim", 1, 1, Yields::Text, Takes::Text, u"ltrim"},
    FunctionDef{u"RTrim", 1, 1, Yields::Text, Takes::Text, u"rtrim"},
    FunctionDef{u"UCase", 1, 1, Yields::Text, Takes::Text, u"d_mayusculas"},
    FunctionDef{u"LCase", 1, 1, Yields::Text, Takes::Text, u"d_minusculas"},
    FunctionDef{u"Str", 1, 1, Yields::Text, Takes::Number, u"d_str"},
    FunctionDef{u"CStr", 1, 1, Yields::Text, Takes::Text, u"%1"},
    FunctionDef{u"Format", 1, 2, Yields::Text, Takes::Any, u"d_formato"},

    FunctionDef{u"Val", 1, 1, Yields::Double, Takes::Text, u"d_val"},
    FunctionDef{u"CDbl", 1, 1, Yields::Double, Takes::Number, u"(%1 * 1.0)"},
    FunctionDef{u"CInt", 1, 1, Yields::Integer, Takes::Number, u"d_redondeo"},
    FunctionDef{u"CLng", 1, 1, Yields::Integer, Takes::Number, u"d_redondeo"},
    FunctionDef{u"Int", 1, 1, Yields::Integer, Takes::Number, u"CAST(d_piso(%1) AS INTEGER)"},
    FunctionDef{u"Fix", 1, 1, Yields::Integer, Takes::Number, u"CAST(%1 AS INTEGER)"},
    FunctionDef{u"Abs", 1, 1, Yields::SameAsFirst, Takes::Any, u"abs"},
    FunctionDef{u"Sgn", 1, 1, Yields::Integer, Takes::Number, u"sign"},
    FunctionDef{u"Sqr", 1, 1, Yields::Double, Takes::Number, u"d_raiz"},
    FunctionDef{u"Round", 1, 2, Yields::Double, Takes::Number, u"d_redondeo"},

    FunctionDef{u"IIf", 3, 3, Yields::SameAsLast, Takes::Any, u"iif"},
    FunctionDef{u"Nz", 2, 2, Yields::SameAsLast, Takes::Any, u"coalesce"},
    FunctionDef{u"IsNull", 1, 1, Yields::Condition, Takes::Any, u"(%1 IS NULL)"},
    FunctionDef{u"IsDate", 1, 1, Yields::Condition, Takes::Text, u"d_es_fecha"},
    FunctionDef{u"IsNumeric", 1, 1, Yields::Condition, Takes::Text, u"d_es_numero"},
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
