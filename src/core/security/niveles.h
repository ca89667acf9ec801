#pragma once

#include "platform/dao/recordset.h"

#include <QString>
#include <QStringList>

namespace MODULE11
{

/// Whether the logged-in user's level grants the right of this key; tells and logs its own refusal, and logs
/// the grant. Everything is granted while there are no users.
bool VerificaNivel(const QString &clave);
/// The same without a word, for what is shown only to those who have the right.
bool TieneNivel(const QString &clave);

/// A user of this level or above is suspended; below it lies the level that a restored user gets back.
constexpr qint64 suspendido = 1000;

/// The current row of `Niveles` as the combos offer it: "03 - Supervisor".
QString entradaDeNivel(dao::Recordset &niveles);
/// All of them, in the order of their numbers.
QStringList entradasDeNivel();
/// The level of such an entry: its first two characters, so levels are kept under 100.
int nivelDeEntrada(const QString &entrada);

/// What an account is for. Usuarios.Tipo holds the first letter.
extern const QStringList tiposDeUsuario;
/// The type whose first letter this is; empty when there is none.
QString tipoDeLetra(const QString &letra);

} // namespace MODULE11
