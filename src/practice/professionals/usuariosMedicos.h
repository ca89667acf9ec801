#pragma once

#include "platform/basic/value.h"

class QComboBox;

namespace practice
{

/// Fills a list with the accounts of type doctor; each entry carries its idUsuario. Nothing is selected.
void llenaUsuariosMedicos(QComboBox &lista);
/// The idUsuario of the entry selected; Null when none is.
basic::Value usuarioElegido(const QComboBox &lista);
/// Selects the account with this id; none when it is not in the list.
void eligeUsuario(QComboBox &lista, const basic::Value &idUsuario);

} // namespace practice
