#include "core/services/criterio.h"

#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using dao::FieldType;

namespace services
{

namespace
{

std::optional<QString> comoSiONo(const QString &escrito)
{
    const auto verdad = basic::typedTruth(escrito);
    return verdad ? std::optional(*verdad ? u"-1"_s : u"0"_s) : std::nullopt;
}

std::optional<QString> comoNumero(const QString &escrito)
{
    const auto numero = basic::toNumber(escrito);
    return numero && basic::isNumeric(escrito) ? std::optional(QString::number(*numero, 'g', 15))
                                               : std::nullopt;
}

std::optional<QString> comoFecha(const QString &escrito)
{
    return basic::isDate(escrito) ? std::optional(u"cdate(%1)"_s.arg(dao::quoted(escrito))) : std::nullopt;
}

} // namespace

std::optional<QString> literal(const dao::FieldDef &campo, const QString &escrito)
{
    switch (campo.type) {
    case FieldType::Text:
    case FieldType::Memo:
        return dao::quoted(escrito);
    case FieldType::Date:
    case FieldType::Time:
        return comoFecha(escrito);
    case FieldType::Bit:
        return comoSiONo(escrito);
    default:
        return comoNumero(escrito);
    }
}

QString loQuePide(const dao::FieldDef &campo)
{
    switch (campo.type) {
    case FieldType::Text:
    case FieldType::Memo:
        return u"El campo es un texto."_s;
    case FieldType::Date:
        return u"El campo es una fecha."_s;
    case FieldType::Time:
        return u"El campo es una hora."_s;
    case FieldType::Bit:
        return u"El campo dice Sí o No."_s;
    default:
        return u"El campo es un número."_s;
    }
}

std::optional<QString> criterio(const dao::FieldDef &campo, const QString &comparacion,
                                const QString &escrito)
{
    const auto valor = literal(campo, escrito);
    return valor ? std::optional(u"[%1] %2 %3"_s.arg(campo.name, comparacion, *valor)) : std::nullopt;
}

} // namespace services
