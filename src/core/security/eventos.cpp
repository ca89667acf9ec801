#include "core/security/eventos.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

constexpr int largoDeSuceso = 255; // the names of diseases are long; an event is noted in any case

} // namespace

void RegistraEvento(const QString &proceso, const QString &usuario, basic::Date fecha, basic::Date hora,
                    const QString &suceso)
{
    basic::ignoring(dao::fileTrouble, [&] {
        dao::Recordset eventos = BaseDatos.openRecordset(u"Eventos"_s);
        eventos.addNew();
        eventos[u"Proceso"] = proceso;
        eventos[u"Usuario"] = usuario;
        eventos[u"Fecha"] = fecha;
        eventos[u"Hora"] = basic::format(hora, u"HH:MM");
        eventos[u"Suceso"] = suceso.left(largoDeSuceso);
        eventos.update();
    });
}

void RegistraEvento(const QString &proceso, const QString &suceso)
{
    RegistraEvento(proceso, UsuarioActual, basic::today(), basic::time(), suceso);
}

} // namespace MODULE11
