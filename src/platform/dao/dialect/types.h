#pragma once

#include "platform/basic/value.h"
#include "platform/dao/dialect/ast.h"
#include "platform/dao/schema.h"

#include <optional>

namespace dao
{

/// The type that a name of the dialect's DDL stands for, without regard to case.
std::optional<FieldType> typeNamed(QStringView name);
/// "TEXT(50)", "LONG": the type as DDL spells it.
QString typeText(const FieldDef &field);
/// Bytes of a type's values; the default length of a Text.
int defaultSize(FieldType type);

ExprType exprTypeOf(FieldType type);
/// The column that a query shows for an expression of a type.
FieldDef fieldOf(ExprType type, const QString &name);

/// The value as a column stores it. Throws TypeMismatch, TextTooLong, ValueOutOfRange. Empty counts as Null,
/// Null as false in a Bit.
basic::Value converted(const basic::Value &value, const FieldDef &field);

/// A date literal between # signs: month/day/year; day/month/year where the first cannot be a month.
std::optional<basic::Date> dateLiteral(QStringView text);

} // namespace dao
