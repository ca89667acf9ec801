#include "core/services/listas.h"

#include "core/session/session.h"

#include <QComboBox>

namespace services
{

void agregarConClave(QComboBox &lista, const QString &sql, QStringView campo, QStringView clave)
{
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(sql);
    for (; !filas.eof(); filas.moveNext())
        if (const basic::Value texto = filas[campo]; !texto.isNull())
            lista.addItem(texto.text(), filas[clave].integer());
}

} // namespace services
