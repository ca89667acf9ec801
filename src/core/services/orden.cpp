#include "core/services/orden.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace services
{

qsizetype lugarDeLaClausula(const QString &sql, const QString &clausula)
{
    const QRegularExpression pieza(u"'[^']*'|\"[^\"]*\"|\\[[^\\]]*\\]|[()]|\\b(%1)\\b"_s.arg(clausula),
                                   QRegularExpression::CaseInsensitiveOption);
    int dentro = 0;
    for (auto piezas = pieza.globalMatch(sql); piezas.hasNext();) {
        const auto hallada = piezas.next();
        const QStringView texto = hallada.capturedView();
        if (texto == u"(")
            ++dentro;
        else if (texto == u")")
            --dentro;
        else if (dentro == 0 && hallada.hasCaptured(1))
            return hallada.capturedStart();
    }
    return sql.size();
}

QString ordenadaPor(const QString &sql, int columna, bool descendente)
{
    static const QRegularExpression primeras(u"^\\s*select\\s+(distinct\\s+)?top\\b"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (sql.contains(primeras))
        return sql;
    static const QRegularExpression palabras(u'^' + clausulaDelOrden + u"\\s+"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    const qsizetype lugar = lugarDeLaClausula(sql, clausulaDelOrden);
    QString propio = sql.sliced(lugar).remove(palabras).trimmed();
    if (!propio.isEmpty())
        propio.prepend(u", "_s);
    return sql.first(lugar).trimmed() + u" order by "_s + QString::number(columna + 1) +
           (descendente ? u" desc"_s : QString()) + propio;
}

} // namespace services
