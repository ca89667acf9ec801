#include "practice/tariffs/importe.h"

#include "platform/basic/runtime.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace importes
{

namespace
{

constexpr double mayorImporte = 900e12; // ten-thousandths in 64 bits

} // namespace

std::optional<basic::Currency> escrito(QStringView texto)
{
    const std::optional<double> numero = basic::toNumber(texto);
    if (!numero || std::abs(*numero) > mayorImporte)
        return std::nullopt;
    return basic::Currency::fromDouble(*numero);
}

QString enMoneda(const basic::Value &importe)
{
    return basic::format(importe.currency(), u"currency");
}

QString paraEditar(const basic::Value &importe)
{
    return importe.isNull() ? QString() : basic::format(importe.currency(), u"0.00##");
}

} // namespace importes
