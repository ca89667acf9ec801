#include "figures/criterios.h"

using namespace Qt::StringLiterals;

namespace criterios
{

bool esConector(const QString &linea)
{
    return linea == y || linea == o || linea == peroNo;
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
