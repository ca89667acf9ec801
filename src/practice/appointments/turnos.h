#pragma once

#include "platform/basic/value.h"
#include "platform/dao/recordset.h"
#include "platform/forms/dbgrid.h"

#include <QDate>
#include <QString>

#include <optional>

/// The rules of the appointment book. A free place is a row too: its patient is the marker.
namespace turnos
{

inline const QString sinAsignar = QStringLiteral("<Sin Asignar>");

struct Edad {
    int anios = 0, meses = 0, dias = 0;
};
/// Whole years, months and days lived on `hoy`; all 0 before the birth.
Edad edad(QDate nacimiento, QDate hoy);
/// "03 A 02 M 15 D ", as the book keeps it.
QString textoDeEdad(const Edad &edad);

/// What a taken place holds, as the booking dialogue gives it: not yet cut to the columns.
struct Reserva {
    QString paciente, telefono, email, nroAfiliado;
    qint64 idPaciente = 0;
    QString mutual, dr;
    qint64 idMutual = 0, idProfesional = 0;
    QString motivo, coseguro, observaciones, edad;
};

bool libre(dao::Recordset &lugar); ///< the current row's patient is the marker
/// Writes a booking into the current row, whatever it held. The note grows by a full stop each time.
void ocupar(dao::Recordset &lugar, const Reserva &reserva);
/// Makes the current row a free place again; day, hour and professional stay.
void liberar(dao::Recordset &lugar);
void cambiarEstado(dao::Recordset &lugar, const QString &estado);

/// The key of the professional with this name.
std::optional<qint64> idProfesional(const QString &nombre);
/// A professional attends on the days that have working hours, with places or without.
bool atiende(qint64 idProfesional, basic::Date fecha);

/// Free places stand back, given ones stand out.
forms::RowLook aspecto(const basic::Value &paciente);

} // namespace turnos
