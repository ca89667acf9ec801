#pragma once

#include <QString>

#include <optional>

/// The prescriptions issued, rows of `Recetario`.
namespace recetas
{

/// A prescription as it lies in the file: each time it is kept a point is put behind it.
QString conPunto(const QString &texto);

/// Keeps a new prescription of the session's professional, of today; its key. Throws dao::Error.
qint64 registrar(qint64 paciente, const QString &texto);

/// The text of the patient's last prescription, without the point that the file put behind it.
std::optional<QString> ultima(qint64 paciente);

/// Prints one; false when the person cancelled. Throws basic::Error.
bool imprimir(qint64 idReceta);
/// Opens a message of the mail program with the prescription as a PDF, to the patient's address if there is
/// one; false when there is no mail program. Throws basic::Error.
bool enviarPorCorreo(qint64 idReceta);

} // namespace recetas
