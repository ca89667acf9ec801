#include "practice/appointments/otorgaTurno.h"

#include "core/security/niveles.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "practice/appointments/panNueTurno.h"
#include "practice/appointments/turnos.h"

using namespace Qt::StringLiterals;

namespace
{

dao::Recordset lugarLibre(basic::Date fecha, const QString &hora)
{
    return MODULE11::BaseDatos.openRecordset(
        u"Select * from Turnos WHERE Paciente = %1 AND Fecha = %2 AND Hora = %3"_s.arg(
            dao::quoted(turnos::sinAsignar), dao::cdate(fecha), dao::quoted(hora)));
}

} // namespace

void OtorgaTurno(std::optional<qint64> paciente)
{
    if (!MODULE11::VerificaNivel(u"AgregarTurnos"_s))
        return;
    panNueTurno dialogo;
    if (paciente)
        dialogo.setPaciente(QString::number(*paciente));
    dialogo.setFecha(basic::today());
    dialogo.proponer({}, MODULE11::DrActual);
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return;
    dao::Recordset lugar = lugarLibre(dialogo.fecha(), dialogo.hora());
    if (lugar.eof()) {
        forms::msgBox(u"Error, el turno no está disponible."_s, forms::Icon::Critical, u"Error"_s);
        return;
    }
    turnos::ocupar(lugar, dialogo.reserva());
}
