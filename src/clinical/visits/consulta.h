#pragma once

#include "clinical/catalogues/eleccion.h"
#include "platform/basic/value.h"
#include "platform/dao/recordset.h"

#include <array>
#include <optional>

/// A visit as it is recorded: one row of `Consulta`, and one of `ExFisico` for every item of the physical
/// examination, filled or not. Symptoms, diagnoses and treatments are five flat slots each; what goes beyond
/// the fifth is not kept.
namespace consultas
{

using ports::Renglon;

inline constexpr int ranuras = 5;

/// The repeating groups, by the index that their list, their commands and their messages share.
enum Grupo { Sintomas, Tratamientos, Diagnosticos };
inline constexpr std::array grupos = {Sintomas, Tratamientos, Diagnosticos};

using Renglones = std::array<std::vector<Renglon>, grupos.size()>; ///< by Grupo

/// The column of a slot's name, 1 to 5: "Sintoma 1".
QString columna(Grupo grupo, int ranura);

/// The two pairs of options of a visit, the first choice of each first; their texts are stored and compared.
QString lugar(bool consultorio); ///< "Consultorio" or "Domicilio"
QString tipo(bool primera);      ///< "1ra." or "Ulterior"

/// One item of the examination: the title is its key.
struct Hallazgo {
    QString titulo, valor;
};

/// What the capture form gathers. Numbers and the hour are texts as typed.
struct Visita {
    basic::Date fecha;
    QString hora;
    bool consultorio = true;
    bool primera = true;
    QString clase = {}; ///< of a visit that is neither the first nor a later one: the type that is stored
    QString motivo = {}, peso = {}, talla = {}, estadoGeneral = {}, alimentacion = {};
    QString perimetroCefalico = QStringLiteral("0"); ///< the capture form has no such field
    QString pulso = {}, temperatura = {}, respiracion = {}, especialidad = {};
    Renglones renglones = {};
    std::vector<Hallazgo> examen = {};
};

/// What a visit copies from elsewhere, so that a later change there does not touch it.
struct Copiado {
    QString nombre, sexo, mutual, dr;
    std::optional<qint64> edad; ///< days on the day of entry, whatever the day of the visit
    basic::Value monto;         ///< price of the patient's coverage; nothing without one
};

/// A visit that is in the file.
struct Registrada {
    qint64 idConsulta = 0;
    QString examenSinGuardar = {}; ///< why the examination is not whole; empty when it is
};

/// Adds the visit to a table-type recordset of `Consulta` and returns its `idConsulta`. A value that its
/// column does not take leaves the column empty. Throws dao::Error when the row cannot be written.
qint64 agregarConsulta(dao::Recordset &consultas, const QString &paciente, const Visita &visita,
                       const Copiado &copiado);

/// Adds the examination of a visit to a recordset of `ExFisico`. Throws dao::Error.
void agregarExamen(dao::Recordset &exFisico, const QString &paciente, qint64 idConsulta, const Visita &visita,
                   const QString &dr);

} // namespace consultas

/// Records an accepted visit of the patient with this number: the date of the last visit in the register, the
/// visit with today's age and price, the audit event, and the examination, all at one stroke. What was
/// written before a failure stays. A value that its column does not take is skipped; a visit that cannot be
/// written throws dao::Error, since it must not be lost unseen.
consultas::Registrada registrarConsulta(const QString &numero, const consultas::Visita &visita);
