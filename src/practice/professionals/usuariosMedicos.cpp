#include "practice/professionals/usuariosMedicos.h"

#include "core/services/listas.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace practice
{

void llenaUsuariosMedicos(QComboBox &lista)
{
    lista.clear();
    services::agregarConClave(lista, u"Select * from usuarios WHERE tipo = 'M'"_s, u"Nombre", u"idUsuario");
    lista.setCurrentIndex(-1);
}

basic::Value usuarioElegido(const QComboBox &lista)
{
    if (lista.currentIndex() < 0)
        return basic::Null{};
    return lista.currentData().toLongLong();
}

void eligeUsuario(QComboBox &lista, const basic::Value &idUsuario)
{
    lista.setCurrentIndex(idUsuario.isNull() ? -1 : lista.findData(idUsuario.integer()));
}

} // namespace practice
