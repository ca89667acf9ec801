#pragma once

#include "specialties/odontology/esquema.h"

#include <QString>

#include <optional>

/// The schemes that a patient has, known by their names. All throw dao::Error.
namespace esquemas
{

/// A scheme as it stands in the file.
struct Guardado {
    QString string1, string2;
    bool operator==(const Guardado &) const = default;
};

/// Their names, oldest first.
QStringList nombres(qint64 paciente);
/// Nothing when there is none of the name.
std::optional<Guardado> leer(qint64 paciente, const QString &nombre);
void crear(qint64 paciente, const QString &nombre, const Guardado &esquema);
/// In the place of the one of the name, which is made when another station has deleted it.
void guardar(qint64 paciente, const QString &nombre, const Guardado &esquema);
void borrar(qint64 paciente, const QString &nombre);

} // namespace esquemas
