#include "practice/affiliates/mapa.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/recordset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace afiliados
{

namespace
{

using dao::FieldType;

QString sinCorchetes(const QString &nombre)
{
    const QString limpio = nombre.trimmed();
    return limpio.startsWith(u'[') && limpio.endsWith(u']') ? limpio.sliced(1, limpio.size() - 2) : limpio;
}

/// A day as the roll has it, year, month and day together; by their marks in any order that reads as a day.
QString conBarras(const QString &texto)
{
    if (!std::ranges::all_of(texto, [](QChar c) { return c.isDigit(); }))
        return texto;
    return texto.right(2) + u'/' + texto.mid(4, 2) + u'/' + texto.left(4);
}

Lectura fecha(const QString &texto)
{
    const auto dia = basic::toDate(conBarras(texto));
    return {dia ? basic::Value(*dia) : basic::Null{}};
}

Lectura numero(const QString &texto)
{
    if (texto.isEmpty())
        return {basic::Null{}};
    const auto numero = basic::toNumber(texto);
    return numero ? Lectura{*numero} : Lectura{basic::Null{}, false, u"no es un número"_s};
}

Lectura siONo(const QString &texto)
{
    static const QStringList si = {u"s"_s, u"si"_s, u"sí"_s, u"v"_s, u"x"_s, u"1"_s, u"-1"_s};
    static const QStringList no = {u"n"_s, u"no"_s, u"f"_s, u"0"_s};
    const QString dicho = texto.toLower();
    if (texto.isEmpty())
        return {basic::Null{}};
    if (si.contains(dicho) || no.contains(dicho))
        return {si.contains(dicho)};
    return {basic::Null{}, false, u"no es un sí o un no"_s};
}

Lectura texto(const QString &texto, int largo)
{
    const bool sobra = largo > 0 && texto.size() > largo;
    return {sobra ? texto.left(largo).trimmed() : texto, sobra};
}

} // namespace

Mapa leerMapa()
{
    const dao::TableDef pacientes = MODULE11::BaseDatos.tableDef(u"Pacientes");
    Mapa mapa;
    for (dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Select * from CamposImport"_s);
         !filas.eof(); filas.moveNext()) {
        mapa.vacio = false;
        Campo campo{sinCorchetes(filas[u"CampoEnAfiliado"].text()), filas[u"PosicionInicial"].integer(),
                    filas[u"Tamano"].integer()};
        const dao::FieldDef *columna = pacientes.field(campo.columna);
        if (!columna) {
            mapa.desconocidas += campo.columna;
            continue;
        }
        campo.tipo = columna->type;
        campo.largo = columna->type == FieldType::Text ? columna->size : 0;
        if (filas[u"CampoIndex"].truth())
            mapa.clave = campo;
        if (campo.posicion > 0 && campo.tamano > 0)
            mapa.campos.push_back(campo);
    }
    return mapa;
}

QString cortar(const QString &linea, const Campo &campo)
{
    return linea.mid(campo.posicion - 1, campo.tamano);
}

Lectura leer(const QString &escrito, const Campo &campo)
{
    const QString limpio = escrito.trimmed();
    if (campo.columna.compare(u"Sexo", Qt::CaseInsensitive) == 0)
        return {limpio.compare(u"M", Qt::CaseInsensitive) == 0 ? u"Varon"_s : u"Mujer"_s};
    switch (campo.tipo) {
    case FieldType::Text:
    case FieldType::Memo:
        return texto(limpio, campo.largo);
    case FieldType::Date:
    case FieldType::Time:
        return fecha(limpio);
    case FieldType::Bit:
        return siONo(limpio);
    default:
        return numero(limpio);
    }
}

} // namespace afiliados
