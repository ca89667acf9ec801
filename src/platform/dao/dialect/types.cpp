#include "platform/dao/dialect/types.h"

#include "platform/basic/cleantext.h"

#include "platform/basic/runtime.h"
#include "platform/dao/dialect/names.h"
#include "platform/dao/error.h"

#include <array>
#include <cmath>
#include <limits>

namespace dao
{

namespace
{

struct TypeName {
    QStringView name;
    FieldType type;
};

// The first name of each type is the one that DDL is written back with.
constexpr std::array typeNames{
    TypeName{u"COUNTER", FieldType::Counter},
    TypeName{u"LONG", FieldType::Long},
    TypeName{u"INTEGER", FieldType::Integer},
    TypeName{u"DOUBLE", FieldType::Double},
    TypeName{u"CURRENCY", FieldType::Currency},
    TypeName{u"TEXT", FieldType::Text},
    TypeName{u"MEMO", FieldType::Memo},
    TypeName{u"BIT", FieldType::Bit},
    TypeName{u"DATE", FieldType::Date},
    TypeName{u"TIME", FieldType::Time},
    TypeName{u"AUTOINCREMENT", FieldType::Counter},
    TypeName{u"SHORT", FieldType::Integer},
    TypeName{u"SMALLINT", FieldType::Integer},
    TypeName{u"FLOAT", FieldType::Double},
    TypeName{u"NUMBER", FieldType::Double},
    TypeName{u"MONEY", FieldType::Currency},
    TypeName{u"CHAR", FieldType::Text},
    TypeName{u"VARCHAR", FieldType::Text},
    TypeName{u"STRING", FieldType::Text},
    TypeName{u"LONGTEXT", FieldType::Memo},
    TypeName{u"YESNO", FieldType::Bit},
    TypeName{u"LOGICAL", FieldType::Bit},
    TypeName{u"BOOLEAN", FieldType::Bit},
    TypeName{u"DATETIME", FieldType::Date},
};

[[noreturn]] void throwMismatch(const FieldDef &field)
{
    throw Error(Error::TypeMismatch,
                QStringLiteral("Los tipos de datos no coinciden: el valor no sirve para el campo '%1'.")
                    .arg(field.name));
}

double numberFor(const basic::Value &value, const FieldDef &field)
{
    const auto *text = value.as<QString>();
    if (!text)
        return value.number();
    const std::optional<double> number = basic::toNumber(*text);
    if (!number)
        throwMismatch(field);
    return *number;
}

basic::Value wholeNumber(const basic::Value &value, const FieldDef &field)
{
    const double rounded = std::nearbyint(numberFor(value, field));
    const double limit = field.type == FieldType::Integer ? 32767.0 : 2147483647.0;
    if (!(rounded <= limit && rounded >= -limit - 1))
        throw Error(Error::ValueOutOfRange,
                    QStringLiteral("El valor está fuera del intervalo del campo '%1'.").arg(field.name));
    return static_cast<qint64>(rounded);
}

basic::Value money(const basic::Value &value, const FieldDef &field)
{
    if (value.kind() == basic::Value::Kind::Currency)
        return value;
    const double amount = numberFor(value, field);
    if (!(std::abs(amount) < 922337203685477.0))
        throw Error(Error::ValueOutOfRange,
                    QStringLiteral("El valor está fuera del intervalo del campo '%1'.").arg(field.name));
    return basic::Currency::fromDouble(amount);
}

basic::Value shortText(const basic::Value &value, const FieldDef &field)
{
    QString text = basic::cleanText(value.text());
    if (field.type == FieldType::Text && text.size() > field.size)
        throw Error(Error::TextTooLong,
                    QStringLiteral("El campo '%1' es demasiado pequeño para la cantidad de datos que "
                                   "intentó agregar: admite %2 caracteres.")
                        .arg(field.name)
                        .arg(field.size));
    return text;
}

basic::Value moment(const basic::Value &value, const FieldDef &field)
{
    const auto *text = value.as<QString>();
    if (!text)
        return value.date();
    const std::optional<basic::Date> date = basic::toDate(*text);
    if (!date)
        throwMismatch(field);
    return *date;
}

basic::Value truthValue(const basic::Value &value, const FieldDef &field)
{
    if (const auto *text = value.as<QString>()) {
        if (sameName(*text, u"Verdadero") || sameName(*text, u"True"))
            return true;
        if (sameName(*text, u"Falso") || sameName(*text, u"False"))
            return false;
    }
    return numberFor(value, field) != 0.0;
}

} // namespace

std::optional<FieldType> typeNamed(QStringView name)
{
    for (const TypeName &entry : typeNames) {
        if (sameName(entry.name, name))
            return entry.type;
    }
    return {};
}

QString typeText(const FieldDef &field)
{
    for (const TypeName &entry : typeNames) {
        if (entry.type == field.type)
            return field.type == FieldType::Text ? QStringLiteral("TEXT(%1)").arg(field.size)
                                                 : entry.name.toString();
    }
    return {};
}

int defaultSize(FieldType type)
{
    switch (type) {
    case FieldType::Counter:
    case FieldType::Long:
        return 4;
    case FieldType::Integer:
        return 2;
    case FieldType::Bit:
        return 1;
    case FieldType::Text:
        return 255;
    case FieldType::Memo:
        return 0;
    case FieldType::Double:
    case FieldType::Currency:
    case FieldType::Date:
    case FieldType::Time:
        break;
    }
    return 8;
}

ExprType exprTypeOf(FieldType type)
{
    switch (type) {
    case FieldType::Counter:
    case FieldType::Long:
    case FieldType::Integer:
        return ExprType::Integer;
    case FieldType::Double:
        return ExprType::Double;
    case FieldType::Currency:
        return ExprType::Currency;
    case FieldType::Bit:
        return ExprType::Bit;
    case FieldType::Date:
    case FieldType::Time:
        return ExprType::Date;
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return ExprType::Text;
}

FieldDef fieldOf(ExprType type, const QString &name)
{
    FieldType field = FieldType::Memo;
    switch (type) {
    case ExprType::Condition:
    case ExprType::Bit:
        field = FieldType::Bit;
        break;
    case ExprType::Integer:
        field = FieldType::Long;
        break;
    case ExprType::Double:
        field = FieldType::Double;
        break;
    case ExprType::Currency:
        field = FieldType::Currency;
        break;
    case ExprType::Date:
        field = FieldType::Date;
        break;
    case ExprType::Null:
    case ExprType::Text:
        break;
    }
    return {name, field, defaultSize(field)};
}

basic::Value converted(const basic::Value &value, const FieldDef &field)
{
    if (value.isNull() || value.isEmpty())
        return field.type == FieldType::Bit ? basic::Value(false) : basic::Value(basic::Null());
    switch (field.type) {
    case FieldType::Counter:
    case FieldType::Long:
    case FieldType::Integer:
        return wholeNumber(value, field);
    case FieldType::Double:
        return numberFor(value, field);
    case FieldType::Currency:
        return money(value, field);
    case FieldType::Text:
    case FieldType::Memo:
        return shortText(value, field);
    case FieldType::Bit:
        return truthValue(value, field);
    case FieldType::Date:
    case FieldType::Time:
        return moment(value, field);
    }
    return value;
}

std::optional<basic::Date> dateLiteral(QStringView text)
{
    text = text.trimmed();
    qsizetype end = 0;
    int numbers[3] = {0, 0, 0};
    int digits[3] = {0, 0, 0};
    int part = 0;
    while (end < text.size() && !text[end].isSpace() && text[end] != u':') {
        const QChar c = text[end++];
        if (c >= u'0' && c <= u'9' && digits[part] < 4) {
            numbers[part] = numbers[part] * 10 + (c.unicode() - u'0');
            ++digits[part];
        } else if ((c == u'/' || c == u'-') && part < 2 && digits[part] > 0) {
            ++part;
        } else {
            return {};
        }
    }
    // Year first or a lone time: the same in every notation.
    if (part != 2 || digits[0] == 4)
        return basic::toDate(text);
    auto [month, day, year] = numbers;
    if (digits[2] <= 2)
        year += year < 30 ? 2000 : 1900;
    if (month > 12)
        std::swap(month, day);
    const QDate date(year, month, day);
    if (!date.isValid())
        return {};
    const QStringView rest = text.mid(end).trimmed();
    if (rest.isEmpty())
        return basic::Date(date);
    const std::optional<basic::Date> time = basic::toDate(rest);
    if (!time || time->wholeDays() != 0)
        return {};
    return basic::Date(date, time->time());
}

} // namespace dao
