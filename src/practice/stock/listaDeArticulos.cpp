#include "practice/stock/listaDeArticulos.h"

#include "core/session/session.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace stock
{

namespace
{

constexpr int letras = 20;

} // namespace

void ancho(QComboBox &lista)
{
    lista.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista.setMinimumContentsLength(letras);
}

void agregarArticulos(QComboBox &lista, long long idProfesional, QComboBox *codigos)
{
    dao::Recordset articulos = MODULE11::BaseDatos.openRecordset(
        u"Select idArticulo, Codigo, Descripcion from Articulos where idProfesional = %1 ORDER BY Descripcion"_s
            .arg(idProfesional),
        dao::Recordset::Kind::Snapshot);
    for (qint64 fila = 0; articulos.hasRow(fila); ++fila) {
        const qint64 id = articulos.valueAt(fila, 0).integer();
        lista.addItem(articulos.valueAt(fila, 2).text(), id);
        if (codigos)
            codigos->addItem(articulos.valueAt(fila, 1).text(), id);
    }
}

} // namespace stock
