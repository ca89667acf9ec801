#include "core/service/seleccion.h"

#include "core/services/criterio.h"
#include "core/services/orden.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;

namespace seleccion
{

namespace
{

const QString parecido = u"LIKE"_s;

QString enLista(const QStringList &columnas)
{
    QStringList nombres;
    for (const QString &columna : columnas)
        nombres += u'[' + columna + u']';
    return nombres.join(u", "_s);
}

bool esTexto(const dao::FieldDef &campo)
{
    return campo.type == dao::FieldType::Text || campo.type == dao::FieldType::Memo;
}

/// A query kept in a file may end as a statement does.
QString sinFinal(const QString &sql)
{
    QString texto = sql.trimmed();
    while (texto.endsWith(u';'))
        texto = texto.chopped(1).trimmed();
    return texto;
}

} // namespace

QStringList comparaciones()
{
    return {u"="_s, u">"_s, u"<"_s, u">="_s, u"<="_s, parecido};
}

std::optional<QString> criterio(const dao::FieldDef &campo, const QString &comparacion, const QString &valor)
{
    const bool enCualquierParte = comparacion == parecido && esTexto(campo);
    return services::criterio(campo, comparacion, enCualquierParte ? u'*' + valor + u'*' : valor);
}

QString consulta(const QString &tabla, const QString &criterio, const QString &orden)
{
    return u"Select * from "_s + dao::tableText(tabla) +
           (criterio.isEmpty() ? QString() : u" where "_s + criterio) +
           (orden.isEmpty() ? QString() : u" order by ["_s + orden + u']');
}

QString deColumnas(const QString &tabla, const QStringList &columnas)
{
    return u"Select "_s + enLista(columnas) + u" FROM "_s + dao::tableText(tabla);
}

QString conOrden(const QString &sql, const QStringList &columnas)
{
    const QString texto = sinFinal(sql);
    return texto.first(services::lugarDeLaClausula(texto, services::clausulaDelOrden)).trimmed() +
           u" ORDER BY "_s + enLista(columnas);
}

QString conCriterio(const QString &sql, const QString &criterio)
{
    const QString texto = sinFinal(sql);
    const qsizetype fin =
        services::lugarDeLaClausula(texto, u"group\\s+by|having|"_s + services::clausulaDelOrden);
    const QString filas = texto.first(fin).trimmed();
    const QString resto = fin < texto.size() ? u' ' + texto.sliced(fin) : QString();
    const qsizetype donde = services::lugarDeLaClausula(filas, u"where"_s);
    if (donde == filas.size())
        return filas + u" where "_s + criterio + resto;
    constexpr qsizetype palabra = 5;
    return filas.first(donde) + u"where ("_s + filas.sliced(donde + palabra).trimmed() + u") and "_s +
           criterio + resto;
}

} // namespace seleccion
