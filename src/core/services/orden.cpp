#include "core/services/orden.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace services
{

namespace
{

/// Where the query's own ORDER BY begins, outside of texts, names in brackets and subqueries; its end without
/// one.
qsizetype lugarDelOrden(const QString &sql)
{
    static const QRegularExpression pieza(u"'[^']*'|\"[^\"]*\"|\\[[^\\]]*\\]|[()]|\\border\\s+by\\b"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    int dentro = 0;
    for (auto piezas = pieza.globalMatch(sql); piezas.hasNext();) {
        const auto hallada = piezas.next();
        const QStringView texto = hallada.capturedView();
        if (texto == u"(")
            ++dentro;
        else if (texto == u")")
            --dentro;
        else if (dentro == 0 && texto.front().isLetter())
            return hallada.capturedStart();
    }
    return sql.size();
}

} // namespace

QString ordenadaPor(const QString &sql, int columna, bool descendente)
{
    static const QRegularExpression primeras(u"^\\s*select\\s+(distinct\\s+)?top\\b"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (sql.contains(primeras))
        return sql;
    static const QRegularExpression orden(u"^order\\s+by\\s+"_s, QRegularExpression::CaseInsensitiveOption);
    const qsizetype lugar = lugarDelOrden(sql);
    QString propio = sql.sliced(lugar).remove(orden).trimmed();
    if (!propio.isEmpty())
        propio.prepend(u", "_s);
    return sql.first(lugar).trimmed() + u" order by "_s + QString::number(columna + 1) +
           (descendente ? u" desc"_s : QString()) + propio;
}

} // namespace services
