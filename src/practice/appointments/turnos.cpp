#include "practice/appointments/turnos.h"

#include "core/services/profesional.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace turnos
{

namespace
{

constexpr int largoPaciente = 50;
constexpr int largoContacto = 30;
constexpr int largoEstado = 20;
constexpr int largoEdad = 15;
const QString enCurso = u"En curso"_s;

QString oPunto(const QString &texto)
{
    return texto.isEmpty() ? u"."_s : texto;
}

} // namespace

Edad edad(QDate nacimiento, QDate hoy)
{
    if (!nacimiento.isValid() || nacimiento > hoy)
        return {};
    int meses = (hoy.year() - nacimiento.year()) * 12 + hoy.month() - nacimiento.month();
    if (nacimiento.addMonths(meses) > hoy)
        --meses;
    return {meses / 12, meses % 12, static_cast<int>(nacimiento.addMonths(meses).daysTo(hoy))};
}

QString textoDeEdad(const Edad &edad)
{
    return u"%1 A %2 M %3 D "_s.arg(basic::format(edad.anios, u"00"), basic::format(edad.meses, u"00"),
                                    basic::format(edad.dias, u"00"));
}

bool libre(dao::Recordset &lugar)
{
    return lugar[u"Paciente"].text() == sinAsignar;
}

void ocupar(dao::Recordset &lugar, const Reserva &reserva)
{
    lugar.edit([&] {
        lugar[u"Paciente"] = reserva.paciente.left(largoPaciente);
        lugar[u"Telefono"] = reserva.telefono.left(largoContacto);
        lugar[u"email"] = reserva.email.left(largoContacto);
        lugar[u"nroafiliado"] = reserva.nroAfiliado.left(largoContacto);
        lugar[u"Mutual"] = reserva.mutual;
        lugar[u"Dr"] = reserva.dr;
        lugar[u"Estado"] = enCurso;
        lugar[u"idPaciente"] = reserva.idPaciente;
        lugar[u"idProfesional"] = reserva.idProfesional;
        lugar[u"idMutual"] = reserva.idMutual;
        lugar[u"Edad"] = reserva.edad.left(largoEdad);
        lugar[u"Motivo"] = oPunto(reserva.motivo);
        lugar[u"CoSeguro"] = oPunto(reserva.coseguro);
        lugar[u"Observaciones"] = reserva.observaciones + u'.';
    });
}

void liberar(dao::Recordset &lugar)
{
    lugar.edit([&] {
        lugar[u"idPaciente"] = 0;
        lugar[u"Paciente"] = sinAsignar;
        lugar[u"idMutual"] = 0;
        for (const QStringView campo : {u"Mutual", u"email", u"telefono", u"nroAfiliado", u"Estado",
                                        u"Coseguro", u"Motivo", u"Observaciones", u"Edad"})
            lugar[campo] = QString();
    });
}

void cambiarEstado(dao::Recordset &lugar, const QString &estado)
{
    lugar.edit([&] { lugar[u"Estado"] = estado.left(largoEstado); });
}

std::optional<qint64> idProfesional(const QString &nombre)
{
    const basic::Value id = MODULE11::CampoDelProfesional(nombre, u"idProfesional");
    return id.isNull() ? std::nullopt : std::optional(id.integer());
}

bool atiende(qint64 idProfesional, basic::Date fecha)
{
    return !BaseDatos
                .openRecordset(u"Select * from disTurnos where fecha = %1 and idProfesional = %2"_s.arg(
                    dao::cdate(fecha), QString::number(idProfesional)))
                .eof();
}

forms::RowLook aspecto(const basic::Value &paciente)
{
    return paciente.text() == sinAsignar ? forms::RowLook::standingBack() : forms::RowLook::standingOut();
}

} // namespace turnos
