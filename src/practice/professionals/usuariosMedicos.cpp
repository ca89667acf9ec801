#include "practice/professionals/usuariosMedicos.h"

#include "core/session/session.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace practice
{

void llenaUsuariosMedicos(QComboBox &lista)
{
    lista.clear();
    dao::Recordset usuarios = MODULE11::BaseDatos.openRecordset(u"Select * from usuarios WHERE tipo = 'M'"_s);
    for (; !usuarios.eof(); usuarios.moveNext())
        lista.addItem(usuarios[u"Nombre"].text(), usuarios[u"idUsuario"].integer());
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
