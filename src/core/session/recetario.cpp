#include "core/session/recetario.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

const QString tablaPorOmision = u"POSRECETARIO"_s;
const QString seccion = u"Configuracion"_s;
const QString clave = u"Archivo de configuraciones de la receta"_s;

/// Why a table for the layout may not be made; the default one then serves.
constexpr std::initializer_list<int> sinTablaPropia = {dao::Error::TableExists, dao::Error::IndexExists,
                                                       dao::Error::Locked, dao::Error::ReadOnly,
                                                       dao::Error::DiskFull};

/// The table of this workstation alone, named after the moment.
QString crearTablaPropia()
{
    const QString nombre = u"TblRec_"_s + basic::sqlNumber(basic::timer()).remove(u'.');
    if (basic::ignoring(sinTablaPropia, [&] { crearRecetario(nombre); })) {
        elegirRecetario(nombre);
        return nombre;
    }
    forms::msgBox(u"No se ha creado una tabla definida por el usuario, se utilizará la tabla por omisión"_s,
                  forms::Icon::Information, u"Atencion"_s);
    return u"posRecetario"_s;
}

} // namespace

void crearRecetario(const QString &nombre)
{
    BaseDatos.execute(
        u"CREATE TABLE [%1] (Elemento LONG, Valor TEXT(100), [Posicion X] Long, [Posicion Y] Long, Fuente TEXT(40), [Tamaño] LONG, Bold BIT, Italic BIT, Subrayado BIT, Fecha BIT, Grafico BIT)"_s
            .arg(nombre));
    BaseDatos.execute(u"CREATE INDEX PrimaryKey on [%1] (Elemento)"_s.arg(nombre));
}

bool esRecetario(const QString &nombre)
{
    if (!BaseDatos.tableNames().contains(nombre, Qt::CaseInsensitive))
        return false;
    const dao::TableDef tabla = BaseDatos.tableDef(nombre);
    for (QStringView columna : {u"Elemento", u"Valor", u"Posicion X", u"Posicion Y", u"Fuente", u"Tamaño"})
        if (!tabla.field(columna))
            return false;
    return true;
}

QString recetarioElegido()
{
    return settings::getSetting(seccion, clave);
}

void elegirRecetario(const QString &nombre)
{
    settings::saveSetting(seccion, clave, nombre);
}

void comprobarRecetario()
{
    if (BaseDatos.tableNames().contains(TablaRecetario, Qt::CaseInsensitive))
        return;
    forms::msgBox(
        u"Error : La tabla %1 no está creada en la base de datos, se utilizará la tabla POSRECETARIO."_s.arg(
            TablaRecetario),
        forms::Icon::Critical, u"Error"_s);
    TablaRecetario = tablaPorOmision;
    elegirRecetario(TablaRecetario);
}

void prepararRecetario()
{
    if (!TablaRecetario.isEmpty())
        return;
    if (!BaseDatos.isOpen()) { // nothing is told about a missing base before the login
        TablaRecetario = tablaPorOmision;
        return;
    }
    TablaRecetario = recetarioElegido();
    if (TablaRecetario.isEmpty())
        TablaRecetario = crearTablaPropia();
    comprobarRecetario();
}

} // namespace MODULE11
