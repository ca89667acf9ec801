#include "practice/stock/stock.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace stock
{

namespace
{

void mover(qint64 idArticulo, double cantidad)
{
    BaseDatos.execute(
        u"UPDATE Articulos SET StockActual = Nz(StockActual, 0) + %1 WHERE idArticulo = %2"_s.arg(
            basic::sqlNumber(cantidad), QString::number(idArticulo)));
}

QString clausula(const QString &campo, const std::optional<qint64> &clave)
{
    return clave ? u" AND %1 = %2"_s.arg(campo, QString::number(*clave)) : QString();
}

} // namespace

void registrar(const Movimiento &movimiento)
{
    dao::Batch juntos(BaseDatos);
    dao::Recordset filas = BaseDatos.openRecordset(u"MovStock"_s);
    for (const Renglon &renglon : movimiento.renglones) {
        const double cantidad = movimiento.sentido == Sentido::Entrada ? renglon.cantidad : -renglon.cantidad;
        filas.addNew();
        filas[u"idArticulo"] = renglon.idArticulo;
        filas[u"Cantidad"] = cantidad;
        filas[u"Fecha"] = movimiento.fecha;
        filas[u"idTipoMovimiento"] = movimiento.idTipo;
        filas[u"Comprobante"] = movimiento.comprobante;
        filas.update();
        mover(renglon.idArticulo, cantidad);
    }
    juntos.commit();
}

std::optional<double> cantidad(const QString &escrita)
{
    const auto numero = basic::toNumber(escrita);
    return numero && *numero > 0 ? numero : std::nullopt;
}

QString articulos(qint64 idProfesional)
{
    return u"SELECT Articulos.*, Rubros.Descripcion AS Rubro, UnidadMedidas.Descripcion AS Unidad, "
           u"Proveedores.Empresa AS Proveedor FROM ((Articulos LEFT JOIN Rubros ON Articulos.idRubro = "
           u"Rubros.idRubro) LEFT JOIN UnidadMedidas ON Articulos.idUnidadMedida = "
           u"UnidadMedidas.idUnidadMedida) LEFT JOIN Proveedores ON Articulos.idProveedor = "
           u"Proveedores.idProveedor WHERE Articulos.idProfesional = %1 ORDER BY Articulos.Descripcion"_s.arg(
               idProfesional);
}

QString movimientos(const Filtro &filtro)
{
    return u"SELECT MovStock.Fecha, Articulos.Codigo, Articulos.Descripcion AS Articulo, MovStock.Cantidad, "
           u"TipoMovimientos.Descripcion AS Tipo, MovStock.Comprobante, MovStock.idMovStock FROM (Articulos "
           u"INNER JOIN MovStock ON Articulos.idArticulo = MovStock.idArticulo) LEFT JOIN TipoMovimientos ON "
           u"MovStock.idTipoMovimiento = TipoMovimientos.idTipoMovimiento WHERE Articulos.idProfesional = %1 "
           u"AND MovStock.Fecha >= %2 AND MovStock.Fecha < %3"_s.arg(
               QString::number(filtro.idProfesional), dao::cdate(filtro.desde),
               dao::cdate(basic::Date(filtro.hasta.date().addDays(1)))) +
           clausula(u"MovStock.idArticulo"_s, filtro.idArticulo) +
           clausula(u"MovStock.idTipoMovimiento"_s, filtro.idTipo) +
           u" ORDER BY MovStock.Fecha, MovStock.idMovStock"_s;
}

void borrarArticulo(qint64 idArticulo)
{
    dao::Batch juntos(BaseDatos);
    BaseDatos.execute(u"DELETE * FROM MovStock WHERE idArticulo = %1"_s.arg(idArticulo));
    BaseDatos.execute(u"DELETE * FROM Articulos WHERE idArticulo = %1"_s.arg(idArticulo));
    juntos.commit();
}

QString seleccion(qint64 idProfesional)
{
    return u"{Articulos.idProfesional} = %1"_s.arg(idProfesional);
}

QString seleccionDeFaltantes(qint64 idProfesional)
{
    return seleccion(idProfesional) + u" and {Articulos.StockActual} < {Articulos.StockMinimo}"_s;
}

} // namespace stock
