#include "platform/dao/embedded/functiontexts.h"

#include "platform/dao/dialect/functions.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/error.h"

#include <algorithm>
#include <array>
#include <vector>

namespace dao
{

namespace
{

struct FunctionText {
    QStringView name;
    QStringView text;
};

// Those without operands are not among them: the binder puts today's date and the hour in their place.
constexpr std::array table{
    FunctionText{u"Count", u"count"},
    FunctionText{u"Sum", u"sum"},
    FunctionText{u"Avg", u"avg"},
    FunctionText{u"Min", u"min"},
    FunctionText{u"Max", u"max"},
    FunctionText{u"First", u"d_primero"},
    FunctionText{u"Last", u"d_ultimo"},
    FunctionText{u"CDate", u"%1"},
    FunctionText{u"CVDate", u"%1"},
    FunctionText{u"DateValue", u"d_piso"},
    FunctionText{u"TimeValue", u"d_hora_del_dia"},
    FunctionText{u"Year", u"d_anio"},
    FunctionText{u"Month", u"d_mes"},
    FunctionText{u"Day", u"d_dia"},
    FunctionText{u"Hour", u"d_hora"},
    FunctionText{u"Minute", u"d_minuto"},
    FunctionText{u"Second", u"d_segundo"},
    FunctionText{u"Weekday", u"d_dia_semana"},
    FunctionText{u"DateSerial", u"d_fecha"},
    FunctionText{u"DateDiff", u"d_diferencia"},
    FunctionText{u"DateAdd", u"d_suma_fecha"},
    FunctionText{u"Left", u"d_izquierda"},
    FunctionText{u"Right", u"d_derecha"},
    FunctionText{u"Mid", u"d_medio"},
    FunctionText{u"Len", u"d_largo"},
    FunctionText{u"InStr", u"d_posicion"},
    FunctionText{u"Trim", u"trim"},
    FunctionText{u"LTrim", u"ltrim"},
    FunctionText{u"RTrim", u"rtrim"},
    FunctionText{u"UCase", u"d_mayusculas"},
    FunctionText{u"LCase", u"d_minusculas"},
    FunctionText{u"Str", u"d_str"},
    FunctionText{u"CStr", u"%1"},
    FunctionText{u"Format", u"d_formato"},
    FunctionText{u"Val", u"d_val"},
    FunctionText{u"CDbl", u"(%1 * 1.0)"},
    FunctionText{u"CInt", u"d_redondeo"},
    FunctionText{u"CLng", u"d_redondeo"},
    FunctionText{u"Int", u"CAST(d_piso(%1) AS INTEGER)"},
    FunctionText{u"Fix", u"CAST(%1 AS INTEGER)"},
    FunctionText{u"Abs", u"abs"},
    FunctionText{u"Sgn", u"sign"},
    FunctionText{u"Sqr", u"d_raiz"},
    FunctionText{u"Round", u"d_redondeo"},
    FunctionText{u"IIf", u"iif"},
    FunctionText{u"Nz", u"coalesce"},
    FunctionText{u"IsNull", u"(%1 IS NULL)"},
    FunctionText{u"IsDate", u"d_es_fecha"},
    FunctionText{u"IsNumeric", u"d_es_numero"},
};

std::vector<QStringView> textsByFunction()
{
    std::vector<QStringView> texts;
    for (const FunctionDef &function : functions()) {
        const auto it = std::ranges::find_if(
            table, [&](const FunctionText &entry) { return sameName(entry.name, function.name); });
        texts.push_back(it == table.end() ? QStringView() : it->text);
    }
    return texts;
}

} // namespace

QStringView functionText(int function)
{
    static const std::vector<QStringView> texts = textsByFunction();
    const QStringView text = texts[static_cast<size_t>(function)];
    if (text.isEmpty())
        throw Error(Error::NotSupported, QStringLiteral("El motor no conoce la función '%1'.")
                                             .arg(functions()[static_cast<size_t>(function)].name));
    return text;
}

} // namespace dao
