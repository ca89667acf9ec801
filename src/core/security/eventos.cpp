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

constexpr int largoDeProceso = 60;
constexpr int largoDeUsuario = 50;
constexpr int largoDeSuceso = 255; // the names of diseases are long; an event is noted in any case

/// A log that is missing, or cannot be written at the moment, stops nobody's work.
constexpr std::initializer_list<int> sinRegistro = {
    dao::Error::NotATable,   dao::Error::TableNotFound, dao::Error::ItemNotFound,
    dao::Error::Locked,      dao::Error::ReadOnly,      dao::Error::DiskFull,
    dao::Error::FileDamaged, dao::Error::Closed,        dao::Error::Engine,
};

} // namespace

void RegistraEvento(const QString &proceso, const QString &usuario, basic::Date fecha, basic::Date hora,
                    const QString &suceso)
{
    basic::ignoring(sinRegistro, [&] {
        dao::Recordset eventos = BaseDatos.openRecordset(u"Eventos"_s);
        eventos.addNew();
        eventos[u"Proceso"] = proceso.left(largoDeProceso);
        eventos[u"Usuario"] = usuario.left(largoDeUsuario);
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
