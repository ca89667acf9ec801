#include "platform/dao/embedded/embeddedengine.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/dialect/collation.h"
#include "platform/dao/dialect/like.h"

#include <algorithm>
#include <cmath>

#include ENGINE_HEADER

namespace dao
{

namespace
{

using Call = void (*)(sqlite3_context *, int, sqlite3_value **);

QByteArrayView utf8(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return {text, sqlite3_value_bytes(value)};
}

QString text(sqlite3_value *value)
{
    return QString::fromUtf8(utf8(value));
}

void give(sqlite3_context *context, const QString &result)
{
    const QByteArray bytes = result.toUtf8();
    sqlite3_result_text(context, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

void give(sqlite3_context *context, qint64 result)
{
    sqlite3_result_int64(context, result);
}

void give(sqlite3_context *context, double result)
{
    sqlite3_result_double(context, result);
}

void fail(sqlite3_context *context, int number, QStringView words)
{
    const QByteArray message = QByteArray::number(number) + ':' + words.toUtf8();
    sqlite3_result_error(context, message.constData(), static_cast<int>(message.size()));
}

basic::Date date(sqlite3_value *value)
{
    return basic::Date::fromSerial(sqlite3_value_double(value));
}

qint64 whole(sqlite3_value *value)
{
    return basic::nearestWhole(sqlite3_value_double(value));
}

int wholeInt(sqlite3_value *value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(whole(value), Limits::min(), Limits::max()));
}

bool anyNull(int count, sqlite3_value **values)
{
    for (int i = 0; i < count; ++i) {
        if (sqlite3_value_type(values[i]) == SQLITE_NULL)
            return true;
    }
    return false;
}

/// Every function but the few that say otherwise gives Null for a Null.
template <auto function>
void strict(sqlite3_context *context, int count, sqlite3_value **values)
{
    if (anyNull(count, values))
        sqlite3_result_null(context);
    else
        function(context, count, values);
}

/// The value that the emitter's letter says the engine's number is.
basic::Value meant(sqlite3_value *letter, sqlite3_value *value)
{
    if (sqlite3_value_type(value) == SQLITE_NULL)
        return basic::Null();
    switch (utf8(letter).front()) {
    case 'C':
        return basic::Currency::fromUnits(sqlite3_value_int64(value));
    case 'F':
        return date(value);
    case 'B':
        return sqlite3_value_int64(value) != 0;
    case 'T':
        return text(value);
    default:
        break;
    }
    if (sqlite3_value_type(value) == SQLITE_INTEGER)
        return static_cast<qint64>(sqlite3_value_int64(value));
    return sqlite3_value_double(value);
}

void like(sqlite3_context *context, int, sqlite3_value **values)
{
    auto *pattern = static_cast<LikePattern *>(sqlite3_get_auxdata(context, 0));
    if (!pattern) {
        pattern = new LikePattern(utf8(values[0]));
        sqlite3_set_auxdata(context, 0, pattern, [](void *p) { delete static_cast<LikePattern *>(p); });
        pattern = static_cast<LikePattern *>(sqlite3_get_auxdata(context, 0));
        if (!pattern) {
            sqlite3_result_error_nomem(context);
            return;
        }
    }
    sqlite3_result_int(context, pattern->matches(utf8(values[1])) ? 1 : 0);
}

void toText(sqlite3_context *context, int, sqlite3_value **values)
{
    give(context, meant(values[0], values[1]).text());
}

void toNumber(sqlite3_context *context, int, sqlite3_value **values)
{
    if (const auto number = basic::toNumber(text(values[0])))
        give(context, *number);
    else
        fail(context, Error::TypeMismatch, u"Los tipos de datos no coinciden: un texto no es un número.");
}

void toDate(sqlite3_context *context, int, sqlite3_value **values)
{
    if (const auto found = basic::toDate(text(values[0])))
        give(context, found->serial());
    else
        fail(context, Error::TypeMismatch, u"Los tipos de datos no coinciden: un texto no es una fecha.");
}

void fitText(sqlite3_context *context, int, sqlite3_value **values)
{
    const qsizetype size = sqlite3_value_int(values[1]);
    // A byte is at least as much as a character: most texts need no counting.
    if (utf8(values[0]).size() > size && text(values[0]).size() > size)
        fail(context, Error::TextTooLong, u"El campo es demasiado pequeño para la cantidad de datos.");
    else
        sqlite3_result_value(context, values[0]);
}

void fitWhole(sqlite3_context *context, int, sqlite3_value **values)
{
    const double rounded = std::nearbyint(sqlite3_value_double(values[0]));
    const double limit = sqlite3_value_double(values[1]);
    if (!(rounded <= limit && rounded >= -limit - 1))
        fail(context, Error::ValueOutOfRange, u"El valor está fuera del intervalo del campo.");
    else
        give(context, static_cast<qint64>(rounded));
}

void rounded(sqlite3_context *context, int count, sqlite3_value **values)
{
    const double number = sqlite3_value_double(values[0]);
    if (count == 1) {
        give(context, basic::nearestWhole(number));
        return;
    }
    const double scale = std::pow(10.0, sqlite3_value_int(values[1]));
    give(context, std::nearbyint(number * scale) / scale);
}

template <int (QTime::*part)() const>
void timePart(sqlite3_context *context, int, sqlite3_value **values)
{
    give(context, static_cast<qint64>((date(values[0]).time().*part)()));
}

int yearOf(const QDate &d)
{
    return d.year();
}

template <int (*part)(const QDate &)>
void dateNumber(sqlite3_context *context, int, sqlite3_value **values)
{
    give(context, static_cast<qint64>(part(date(values[0]).date())));
}

int monthOf(const QDate &d)
{
    return d.month();
}

int dayOf(const QDate &d)
{
    return d.day();
}

/// A number of years, months or days as far as the calendar has use for it.
qint64 calendarNumber(sqlite3_value *value)
{
    constexpr qint64 beyondTheCalendar = 4'000'000; // days, from its first to its last
    return std::clamp(whole(value), -beyondTheCalendar, beyondTheCalendar);
}

void makeDate(sqlite3_context *context, int, sqlite3_value **values)
{
    // Months and days beyond their range run over into the next or the previous ones.
    const qint64 months = calendarNumber(values[0]) * 12 + calendarNumber(values[1]) - 1;
    const qint64 year = months >= 0 ? months / 12 : (months - 11) / 12;
    const QDate first(static_cast<int>(year), static_cast<int>(months - year * 12) + 1, 1);
    give(
        context,
        basic::Date::fromSerial(basic::Date(first.addDays(calendarNumber(values[2]) - 1)).serial()).serial());
}

void pieceOfText(sqlite3_context *context, int count, sqlite3_value **values)
{
    const qint64 start = whole(values[1]);
    const qint64 length = count == 3 ? whole(values[2]) : std::numeric_limits<int>::max();
    if (start < 1 || length < 0)
        fail(context, Error::TypeMismatch, u"Argumento no válido en la función Mid.");
    else
        give(context, text(values[0]).mid(start - 1, length));
}

QString leftOf(const QString &s, qsizetype n)
{
    return s.left(n);
}

QString rightOf(const QString &s, qsizetype n)
{
    return s.right(n);
}

template <QString (*piece)(const QString &, qsizetype)>
void cutText(sqlite3_context *context, int, sqlite3_value **values)
{
    const qint64 length = whole(values[1]);
    if (length < 0)
        fail(context, Error::TypeMismatch, u"Argumento no válido en la función Left o Right.");
    else
        give(context, piece(text(values[0]), length));
}

void position(sqlite3_context *context, int count, sqlite3_value **values)
{
    const qint64 from = count == 3 ? std::max<qint64>(whole(values[0]), 1) - 1 : 0;
    give(context,
         static_cast<qint64>(
             text(values[count - 2]).indexOf(text(values[count - 1]), from, Qt::CaseInsensitive) + 1));
}

void formatted(sqlite3_context *context, int count, sqlite3_value **values)
{
    const basic::Value value = meant(values[0], values[1]);
    give(context, count == 3 ? basic::format(value, text(values[2])) : value.text());
}

void dateDifference(sqlite3_context *context, int, sqlite3_value **values)
{
    give(context, basic::dateDiff(text(values[0]), date(values[1]), date(values[2])));
}

void dateSum(sqlite3_context *context, int, sqlite3_value **values)
{
    give(context, basic::dateAdd(text(values[0]), wholeInt(values[1]), date(values[2])).serial());
}

// First and Last of a group keep a value in the aggregate's own memory.
template <bool last>
void keepValue(sqlite3_context *context, int, sqlite3_value **values)
{
    auto **kept = static_cast<sqlite3_value **>(sqlite3_aggregate_context(context, sizeof(sqlite3_value *)));
    if (!kept || (!last && *kept))
        return;
    sqlite3_value_free(*kept);
    *kept = sqlite3_value_dup(values[0]);
}

void giveKept(sqlite3_context *context)
{
    auto **kept = static_cast<sqlite3_value **>(sqlite3_aggregate_context(context, 0));
    if (!kept || !*kept)
        return;
    sqlite3_result_value(context, *kept);
    sqlite3_value_free(*kept);
}

struct Registered {
    const char *name;
    int arguments;
    Call call;
};

const Registered scalars[] = {
    {"d_como", 2, strict<like>},
    {"d_texto", 2, strict<toText>},
    {"d_numero", 1, strict<toNumber>},
    {"d_cdate", 1, strict<toDate>},
    {"d_ajusta", 2, strict<fitText>},
    {"d_entero", 2, strict<fitWhole>},
    {"d_redondeo", 1, strict<rounded>},
    {"d_redondeo", 2, strict<rounded>},
    {"d_anio", 1, strict<dateNumber<yearOf>>},
    {"d_mes", 1, strict<dateNumber<monthOf>>},
    {"d_dia", 1, strict<dateNumber<dayOf>>},
    {"d_hora", 1, strict<timePart<&QTime::hour>>},
    {"d_minuto", 1, strict<timePart<&QTime::minute>>},
    {"d_segundo", 1, strict<timePart<&QTime::second>>},
    {"d_dia_semana", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, static_cast<qint64>(basic::weekday(date(v[0]))));
     }>},
    {"d_fecha", 3, strict<makeDate>},
    {"d_diferencia", 3, strict<dateDifference>},
    {"d_suma_fecha", 3, strict<dateSum>},
    {"d_izquierda", 2, strict<cutText<leftOf>>},
    {"d_derecha", 2, strict<cutText<rightOf>>},
    {"d_medio", 2, strict<pieceOfText>},
    {"d_medio", 3, strict<pieceOfText>},
    {"d_largo", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, static_cast<qint64>(text(v[0]).size()));
     }>},
    {"d_posicion", 2, strict<position>},
    {"d_posicion", 3, strict<position>},
    {"d_mayusculas", 1,
     strict<[](sqlite3_context *c, int, sqlite3_value **v) { give(c, text(v[0]).toUpper()); }>},
    {"d_minusculas", 1,
     strict<[](sqlite3_context *c, int, sqlite3_value **v) { give(c, text(v[0]).toLower()); }>},
    {"d_str", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, basic::str(sqlite3_value_double(v[0])));
     }>},
    {"d_formato", 2, formatted},
    {"d_formato", 3, formatted},
    {"d_val", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) { give(c, basic::val(text(v[0]))); }>},
    {"d_piso", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, std::floor(sqlite3_value_double(v[0])));
     }>},
    {"d_hora_del_dia", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, basic::Date(date(v[0]).time()).serial());
     }>},
    {"d_raiz", 1, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, std::sqrt(sqlite3_value_double(v[0])));
     }>},
    {"d_potencia", 2, strict<[](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, std::pow(sqlite3_value_double(v[0]), sqlite3_value_double(v[1])));
     }>},
    {"d_es_fecha", 1,
     [](sqlite3_context *c, int, sqlite3_value **v) {
         give(c, static_cast<qint64>(sqlite3_value_type(v[0]) != SQLITE_NULL && basic::isDate(text(v[0]))));
     }},
    {"d_es_numero", 1,
     [](sqlite3_context *c, int, sqlite3_value **v) {
         give(c,
              static_cast<qint64>(sqlite3_value_type(v[0]) != SQLITE_NULL && basic::isNumeric(text(v[0]))));
     }},
};

int compare(void *, int sizeA, const void *a, int sizeB, const void *b)
{
    return compareSpanish(QByteArrayView(static_cast<const char *>(a), sizeA),
                          QByteArrayView(static_cast<const char *>(b), sizeB));
}

} // namespace

void registerDialect(sqlite3 *db)
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_collation(db, "ESPANOL", SQLITE_UTF8, nullptr, compare);
    for (const Registered &scalar : scalars)
        sqlite3_create_function(db, scalar.name, scalar.arguments, flags, nullptr, scalar.call, nullptr,
                                nullptr);
    sqlite3_create_function(db, "d_primero", 1, flags, nullptr, nullptr, keepValue<false>, giveKept);
    sqlite3_create_function(db, "d_ultimo", 1, flags, nullptr, nullptr, keepValue<true>, giveKept);
}

} // namespace dao
