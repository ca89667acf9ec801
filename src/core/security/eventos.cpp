#include "core/security/eventos.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

void RegistraEvento(const QString &proceso, const QString &usuario, basic::Date fecha, basic::Date hora,
                    const QString &suceso)
{
    basic::ignoringErrors([&] {
        dao::Recordset eventos = BaseDatos.openRecordset(u"Eventos"_s);
        eventos.addNew();
        eventos[u"Proceso"] = proceso;
        eventos[u"Usuario"] = usuario;
        eventos[u"Fecha"] = fecha;
        eventos[u"Hora"] = basic::format(hora, u"HH:MM");
        eventos[u"Suceso"] = suceso;
        eventos.update();
    });
}

void RegistraEvento(const QString &proceso, const QString &suceso)
{
    RegistraEvento(proceso, UsuarioActual, basic::today(), basic::time(), suceso);
}

} // namespace MODULE11
