#include "figures/criterios.h"

#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

namespace criterios
{

namespace
{

/// "Sí" and "No" as people write them, and the stored -1 and 0.
std::optional<QString> comoSiONo(const QString &valor)
{
    const QString palabra = valor.trimmed().toLower();
    if (QStringList{u"sí"_s, u"si"_s, u"true"_s, u"verdadero"_s, u"-1"_s}.contains(palabra))
        return u"TRUE"_s;
    if (QStringList{u"no"_s, u"false"_s, u"falso"_s, u"0"_s}.contains(palabra))
        return u"FALSE"_s;
    return std::nullopt;
}

std::optional<QString> comoNumero(const QString &valor)
{
    const auto numero = basic::toNumber(valor);
    return numero && basic::isNumeric(valor) ? std::optional(QString::number(*numero, 'g', 15))
                                             : std::nullopt;
}

std::optional<QString> comoFecha(const QString &valor)
{
    return basic::isDate(valor) ? std::optional(u"cdate(%1)"_s.arg(dao::quoted(valor))) : std::nullopt;
}

std::optional<QString> enSuForma(dao::FieldType tipo, const QString &valor)
{
    switch (tipo) {
    case dao::FieldType::Text:
    case dao::FieldType::Memo:
        return dao::quoted(valor);
    case dao::FieldType::Date:
    case dao::FieldType::Time:
        return comoFecha(valor);
    case dao::FieldType::Bit:
        return comoSiONo(valor);
    default:
        return comoNumero(valor);
    }
}

} // namespace

bool esConector(const QString &linea)
{
    return linea == y || linea == o || linea == peroNo;
}

std::optional<QString> criterio(const dao::FieldDef &campo, const QString &operador, const QString &valor)
{
    const auto escrito = enSuForma(campo.type, valor);
    return escrito ? std::optional(u"[%1] %2 %3"_s.arg(campo.name, operador, *escrito)) : std::nullopt;
}

/// Two criteria with nothing between them both hold; a connective that joins nothing says nothing.
QString condicion(const QStringList &lineas)
{
    QStringList partes;
    QString conector;
    for (const QString &linea : lineas) {
        if (esConector(linea)) {
            conector = linea;
            continue;
        }
        if (partes.isEmpty())
            partes += conector == peroNo ? peroNo : QString();
        else
            partes += conector == peroNo ? u"AND NOT"_s : conector.isEmpty() ? y : conector;
        partes += linea;
        conector.clear();
    }
    partes.removeAll(QString());
    return partes.join(u' ');
}

} // namespace criterios
