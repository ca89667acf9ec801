#pragma once

#include "platform/dao/recordset.h"

/// The special studies of a patient, and the catalogue of their names.
namespace estudios
{

/// What stands in the date of a study that has none.
inline const QString sinFecha = QStringLiteral("-");

struct Estudio {
    basic::Value fecha; ///< a day, or Null
    QString tipo, especialista, resultados, observaciones;
};

/// What a person typed as the date of a study, once the field is left: the day; "-" stays; today for what is
/// no date.
QString fechaEscrita(const QString &texto, basic::Date hoy);
/// The day of such a text; Null for one that has none.
basic::Value fechaParaGuardar(const QString &texto);
/// The text of a study's date.
QString textoDeFecha(const basic::Value &fecha);

/// Puts a study into the row being added.
void escribir(dao::Recordset &fila, qint64 paciente, const Estudio &estudio);

/// The catalogue has the study; one that is there already, in whatever case, stays. The name as the catalogue
/// has it.
QString agregarAlCatalogo(const QString &nombre);

} // namespace estudios
