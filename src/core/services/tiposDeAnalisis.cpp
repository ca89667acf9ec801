#include "core/services/tiposDeAnalisis.h"

#include "core/session/session.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace laboratorio
{

namespace
{

constexpr QStringView fijas[] = {u"Paciente", u"Fecha", u"Hora", u"Bioquimico", u"Descripcion"};

} // namespace

bool esEstudio(const dao::FieldDef &columna)
{
    return std::ranges::none_of(
        fijas, [&](QStringView fija) { return fija.compare(columna.name, Qt::CaseInsensitive) == 0; });
}

QStringList estudios()
{
    const dao::TableDef tabla = BaseDatos.tableDef(u"Analisis");
    QStringList nombres;
    for (const dao::FieldDef &columna : tabla.fields())
        if (esEstudio(columna))
            nombres += columna.name;
    return nombres;
}

} // namespace laboratorio
