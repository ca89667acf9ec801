#include "practice/stock/panArticulos.h"

#include "core/records/comando.h"
#include "core/reports/informes.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "practice/stock/listaDeArticulos.h"
#include "practice/stock/panNueArticulo.h"
#include "practice/stock/panNueMovStock.h"
#include "practice/stock/panNueProveedor.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace
{

constexpr int hojaMovimientos = 1;
const QString pregunta = u"Elimina este elemento?"_s;
const QString importes = u"#,##0.00"_s;

/// The key chosen in a filter whose first entry stands for all.
std::optional<qint64> clave(const ComboBox &filtro)
{
    if (filtro.currentIndex() <= 0)
        return std::nullopt;
    return filtro.currentData().toLongLong();
}

/// Fills a filter anew behind its first entry; what was chosen and is still there stays so.
void rellenar(ComboBox &filtro, const std::function<void()> &agregar)
{
    const QSignalBlocker silencio(filtro);
    const QVariant antes = filtro.currentData();
    filtro.clear();
    filtro.addItem(stock::todos);
    agregar();
    filtro.setCurrentIndex(antes.isValid() ? std::max(0, filtro.findData(antes)) : 0);
}

} // namespace

panArticulos::panArticulos()
    : Form(u"panArticulos"_s), rubros(0,
                                      {u"Rubros"_s, u"idRubro"_s, u"Nuevo Rubro"_s,
                                       u"Ingrese la descripción del rubro/tipo :"_s, pregunta},
                                      u"Nuevo &rubro..."_s, u"&Quitar"_s),
      unidades(1,
               {u"UnidadMedidas"_s, u"idUnidadMedida"_s, u"Nueva unidad de medida"_s,
                u"Ingrese la descripción del tipo de unidad de medida :"_s, pregunta},
               u"Nueva &unidad..."_s, u"Qui&tar"_s),
      tipos(2,
            {u"TipoMovimientos"_s, u"idTipoMovimiento"_s, u"Nuevo tipo de movimiento"_s,
             u"Ingrese la descripción del tipo de movimiento de stock a utilizar :"_s, pregunta},
            u"Nue&vo tipo..."_s, u"Quitar ti&po"_s)
{
    setWindowTitle(u"Administración de artículos y stock"_s);
    cbPrest.setMinimumWidth(300);
    stock::ancho(cbArticulo);
    dt1.setValue(basic::Date(basic::today().date().addMonths(-1)));
    setContents(this, Column{
                          Row{Fields{{u"Profesio&nal :"_s, cbPrest}}, Stretch(),
                              orden(u"cmIn"_s, u"&Entrada..."_s, u"agregar"_s, &panArticulos::entrar),
                              orden(u"cmOut"_s, u"Sa&lida..."_s, u"quitar"_s, &panArticulos::sacar)},
                          Expanding(Tabs(SSTab1, {{u"Artículos y Stock"_s, hojaDeArticulos()},
                                                  {u"Movimientos de Stock"_s, hojaDeMovimientos()},
                                                  {u"Proveedores"_s, hojaDeProveedores()},
                                                  {u"Tablas Varias"_s, hojaDeTablas()}})),
                          Row{Stretch(), records::comando(*this, u"Command9"_s, u"&Salir"_s, u"cerrar"_s,
                                                          [this] { unload(); })},
                      });
    resize(1120, 600);
}

CommandButton &panArticulos::orden(const QString &nombre, const QString &rotulo, const QString &icono,
                                   void (panArticulos::*trabajo)())
{
    return records::comando(*this, nombre, rotulo, icono, [this, trabajo] { (this->*trabajo)(); });
}

Item panArticulos::hojaDeArticulos()
{
    DBGrid1.setSource(Data1, {{u"Código"_s, u"Codigo"_s, {}, 90},
                              {u"Descripción"_s, u"Articulos.Descripcion"_s, {}, 260},
                              {u"Stock"_s, u"StockActual"_s, {}, 70},
                              {u"Mínimo"_s, u"StockMinimo"_s, {}, 70},
                              {u"Ideal"_s, u"StockIdeal"_s, {}, 70},
                              {u"Unidad"_s, u"Unidad"_s, {}, 90},
                              {u"Rubro"_s, u"Rubro"_s, {}, 110},
                              {u"Proveedor"_s, u"Proveedor"_s, {}, 130},
                              {u"Costo"_s, u"CostoTotal"_s, importes, 80},
                              {u"Venta"_s, u"PrecioVenta"_s, importes, 80}});
    return Column{
        Expanding(DBGrid1),
        Row{orden(u"Command1"_s, u"Nuevo &artículo..."_s, u"agregar"_s, &panArticulos::nuevoArticulo),
            orden(u"Command2"_s, u"&Modificar..."_s, u"editar"_s, &panArticulos::modificarArticulo),
            orden(u"Command3"_s, u"&Borrar"_s, u"borrar"_s, &panArticulos::borrarArticulo), Stretch(),
            orden(u"Command4"_s, u"&Informe"_s, u"imprimir"_s, &panArticulos::informar),
            orden(u"Command5"_s, u"In&forme Faltante"_s, u"imprimir"_s, &panArticulos::informarFaltantes),
            orden(u"Command6"_s, u"Re&posición"_s, u"imprimir"_s, &panArticulos::informarReposicion)},
    };
}

Item panArticulos::hojaDeMovimientos()
{
    DBGrid2.setSource(Data2, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 90},
                              {u"Código"_s, u"Codigo"_s, {}, 100},
                              {u"Artículo"_s, u"Articulo"_s, {}, 300},
                              {u"Cantidad"_s, u"Cantidad"_s, {}, 90},
                              {u"Tipo de movimiento"_s, u"Tipo"_s, {}, 170},
                              {u"Comprobante"_s, u"Comprobante"_s, {}, 150}});
    return Column{
        Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Stretch()},
        Row{Expanding(Fields{{u"Ar&tículo :"_s, cbArticulo}}), Expanding(Fields{{u"Tip&o :"_s, cbTipoMov}})},
        Expanding(DBGrid2),
    };
}

Item panArticulos::hojaDeProveedores()
{
    DBGrid3.setSource(Data3, {{u"Empresa"_s, u"Empresa"_s, {}, 200},
                              {u"Persona"_s, u"Persona"_s, {}, 160},
                              {u"Domicilio"_s, u"Domicilio"_s, {}, 200},
                              {u"Teléfono"_s, u"Telefono"_s, {}, 130},
                              {u"Email"_s, u"Email"_s, {}, 190},
                              {u"CUIT"_s, u"Cuit"_s, {}, 110}});
    return Column{
        Expanding(DBGrid3),
        Row{orden(u"Command7"_s, u"Nuevo &proveedor..."_s, u"agregar"_s, &panArticulos::nuevoProveedor),
            orden(u"Command8"_s, u"&Modificar..."_s, u"editar"_s, &panArticulos::modificarProveedor),
            orden(u"Command10"_s, u"&Borrar"_s, u"borrar"_s, &panArticulos::borrarProveedor), Stretch()},
    };
}

Item panArticulos::hojaDeTablas()
{
    return Row{Expanding(Group(u"Rubros"_s, rubros)), Expanding(Group(u"Unidades de medida"_s, unidades)),
               Expanding(Group(u"Tipos de movimiento"_s, tipos))};
}

/// A doctor keeps the own stock only.
void panArticulos::load()
{
    services::agregarConClave(cbPrest, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    cbPrest.setCurrentIndex(-1);
    if (MODULE11::TipoUsuario == u"M") {
        cbPrest.setValue(MODULE11::DrActual);
        cbPrest.setEnabled(false);
    }
    for (stock::TablaChica *tabla : {&rubros, &unidades, &tipos})
        tabla->llenar();
    leerProveedores();
    mostrarProfesional();
    conectar();
}

void panArticulos::conectar()
{
    connect(&cbPrest, &QComboBox::currentIndexChanged, this, &panArticulos::mostrarProfesional);
    for (ComboBox *filtro : {&cbArticulo, &cbTipoMov})
        connect(filtro, &QComboBox::currentIndexChanged, this, &panArticulos::leerMovimientos);
    for (DTPicker *dia : {&dt1, &dt2})
        connect(dia, &DTPicker::dateChanged, this, &panArticulos::leerMovimientos);
    connect(&DBGrid1, &DBGrid::accepted, this, &panArticulos::modificarArticulo);
    connect(&DBGrid3, &DBGrid::accepted, this, &panArticulos::modificarProveedor);
    connect(&SSTab1, &QTabWidget::currentChanged, this, &panArticulos::mostrarMovimientos);
    for (stock::TablaChica *tabla : {&rubros, &unidades})
        connect(tabla, &stock::TablaChica::cambiada, this, [this] { leerArticulos(); });
}

std::optional<qint64> panArticulos::profesional() const
{
    if (cbPrest.currentIndex() < 0)
        return std::nullopt;
    return cbPrest.currentData().toLongLong();
}

std::optional<qint64> panArticulos::profesionalElegido()
{
    const auto elegido = profesional();
    if (!elegido) {
        MODULE11::MuestraError(u"Error, debe seleccionar un prestador/profesional !"_s);
        cbPrest.setFocus();
    }
    return elegido;
}

std::optional<qint64> panArticulos::filaElegida(Data &filas, const QString &columna, const QString &aviso)
{
    if (filas.hasRow())
        return filas.recordset()[columna].integer();
    MODULE11::MuestraError(aviso);
    return std::nullopt;
}

void panArticulos::mostrarProfesional()
{
    leerArticulos();
    mostrarMovimientos();
}

/// They are read when somebody looks at them.
void panArticulos::mostrarMovimientos()
{
    if (SSTab1.currentIndex() != hojaMovimientos)
        return;
    llenarFiltros();
    leerMovimientos();
}

/// Of nobody there are none.
void panArticulos::leerArticulos(std::optional<qint64> elegido)
{
    Data1.setRecordSource(stock::articulos(profesional().value_or(-1)));
    Data1.refresh(elegido ? u"Articulos.idArticulo = %1"_s.arg(*elegido) : QString());
}

void panArticulos::llenarFiltros()
{
    rellenar(cbArticulo, [this] { stock::agregarArticulos(cbArticulo, profesional().value_or(-1)); });
    rellenar(cbTipoMov, [this] {
        services::agregarConClave(cbTipoMov, u"Select * from TipoMovimientos ORDER BY Descripcion"_s,
                                  u"Descripcion", u"idTipoMovimiento");
    });
}

void panArticulos::leerMovimientos()
{
    Data2.setRecordSource(stock::movimientos(
        {profesional().value_or(-1), dt1.value(), dt2.value(), clave(cbArticulo), clave(cbTipoMov)}));
    Data2.refresh();
}

void panArticulos::leerProveedores(std::optional<qint64> elegido)
{
    Data3.setRecordSource(u"Select * from Proveedores order by Empresa"_s);
    Data3.refresh(elegido ? u"idProveedor = %1"_s.arg(*elegido) : QString());
}

void panArticulos::nuevoArticulo()
{
    const auto id = profesionalElegido();
    if (!id)
        return;
    panNueArticulo ficha(*id, std::nullopt);
    ficha.showModal();
    if (ficha.tag() != u"SI")
        return;
    leerArticulos(ficha.idArticulo());
}

void panArticulos::modificarArticulo()
{
    const auto id = profesionalElegido();
    const auto articulo =
        id ? filaElegida(Data1, u"idArticulo"_s, u"Error, debe seleccionar un artículo!"_s) : std::nullopt;
    if (!articulo)
        return;
    panNueArticulo ficha(*id, *articulo);
    ficha.showModal();
    if (ficha.tag() != u"SI")
        return;
    leerArticulos(*articulo);
}

void panArticulos::borrarArticulo()
{
    if (!profesionalElegido())
        return;
    const auto articulo = filaElegida(Data1, u"idArticulo"_s, u"Error, debe seleccionar un artículo!"_s);
    if (!articulo ||
        !MODULE11::PreguntaSiBorra(u"Está seguro de eliminar éste artículo y todos sus movimientos?"_s))
        return;
    stock::borrarArticulo(*articulo);
    mostrarProfesional();
}

void panArticulos::mover(stock::Sentido sentido)
{
    const auto id = profesionalElegido();
    if (!id)
        return;
    std::optional<qint64> articulo;
    if (Data1.hasRow())
        articulo = Data1.recordset()[u"idArticulo"].integer();
    panNueMovStock captura(sentido, *id, articulo);
    captura.showModal();
    if (captura.tag() != u"SI")
        return;
    leerArticulos(articulo);
    mostrarMovimientos();
}

void panArticulos::nuevoProveedor()
{
    panNueProveedor ficha(std::nullopt);
    ficha.showModal();
    if (ficha.tag() == u"SI")
        leerProveedores(ficha.idProveedor());
}

void panArticulos::modificarProveedor()
{
    const auto id = filaElegida(Data3, u"idProveedor"_s, u"Elija un proveedor de la lista."_s);
    if (!id)
        return;
    panNueProveedor ficha(*id);
    ficha.showModal();
    if (ficha.tag() == u"SI")
        leerProveedores(*id);
}

void panArticulos::borrarProveedor()
{
    const auto id = filaElegida(Data3, u"idProveedor"_s, u"Elija un proveedor de la lista."_s);
    if (!id || !MODULE11::PreguntaSiBorra(u"Está seguro de eliminar éste proveedor de la lista?"_s))
        return;
    BaseDatos.execute(u"DELETE * FROM Proveedores WHERE idProveedor = %1"_s.arg(*id));
    leerProveedores();
    leerArticulos();
}

void panArticulos::informar()
{
    if (const auto id = profesionalElegido())
        informes::muestra(u"articulos1.rpt"_s, stock::seleccion(*id));
}

void panArticulos::informarFaltantes()
{
    if (const auto id = profesionalElegido())
        informes::muestra(u"articulos1.rpt"_s, stock::seleccionDeFaltantes(*id));
}

void panArticulos::informarReposicion()
{
    if (const auto id = profesionalElegido())
        informes::muestra(u"reposicion.rpt"_s, stock::seleccionDeFaltantes(*id));
}

#include "moc_panArticulos.cpp"
