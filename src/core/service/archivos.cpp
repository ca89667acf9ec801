#include "core/service/archivos.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace archivos
{

namespace
{

const QString delMotor = u"MSy"_s;
const QStringList deSeguridad = {u"USUARIOS"_s, u"EVENTOS"_s, u"NIVELES"_s};

bool aLaVista(const QString &tabla)
{
    return !tabla.startsWith(delMotor, Qt::CaseInsensitive) && !deSeguridad.contains(tabla.toUpper());
}

} // namespace

QStringList tablas()
{
    QStringList todas = MODULE11::BaseDatos.tableNames();
    todas.removeIf([](const QString &tabla) { return !aLaVista(tabla); });
    return todas;
}

bool alcanza(const QString &sql)
{
    const QStringList alcance = tablas();
    return std::ranges::all_of(dao::tablesNamed(sql), [&](const QString &tabla) {
        return alcance.contains(tabla, Qt::CaseInsensitive);
    });
}

} // namespace archivos
