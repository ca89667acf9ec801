#include "practice/stock/panNueArticulo.h"

#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cCodigo, cDescripcion, cActual, cMinimo, cIdeal, cCosto, cCostoTotal, cVenta, campos };
enum class Clase { Texto, Cantidad, Dinero };

struct Campo {
    QStringView columna, rotulo;
    Clase clase;
    int largo;
};
constexpr Campo tabla[campos] = {
    {u"Codigo", u"Có&digo :", Clase::Texto, 15},
    {u"Descripcion", u"D&escripción :", Clase::Texto, 50},
    {u"StockActual", u"&Stock actual :", Clase::Cantidad, 15},
    {u"StockMinimo", u"Stock &mínimo :", Clase::Cantidad, 15},
    {u"StockIdeal", u"Stock &ideal :", Clase::Cantidad, 15},
    {u"PrecioCostoSinImpuestos", u"C&osto sin impuestos :", Clase::Dinero, 15},
    {u"CostoTotal", u"Costo &total :", Clase::Dinero, 15},
    {u"PrecioVenta", u"Precio de &venta :", Clase::Dinero, 15},
};

struct Lista {
    QStringView columna, consulta, texto;
};
constexpr Lista rubros{u"idRubro", u"Select * from Rubros order by Descripcion", u"Descripcion"};
constexpr Lista unidades{u"idUnidadMedida", u"Select * from UnidadMedidas order by Descripcion",
                         u"Descripcion"};
constexpr Lista proveedores{u"idProveedor", u"Select * from Proveedores order by Empresa", u"Empresa"};
const QString ninguno = u"<Sin Asignar>"_s;

void llenar(ComboBox &combo, const Lista &lista)
{
    combo.addItem(ninguno);
    services::agregarConClave(combo, lista.consulta.toString(), lista.texto, lista.columna);
    combo.setCurrentIndex(0);
}

basic::Value clave(const ComboBox &combo)
{
    if (combo.currentIndex() <= 0)
        return basic::Null{};
    return combo.currentData().toLongLong();
}

QString mostrado(const basic::Value &valor, Clase clase)
{
    switch (clase) {
    case Clase::Texto:
        return valor.text();
    case Clase::Cantidad:
        return basic::Value(valor.number()).text();
    case Clase::Dinero:
        return basic::format(valor.currency(), u"0.00##");
    }
    return {};
}

basic::Value leido(const QString &escrito, Clase clase)
{
    const double numero = basic::toNumber(escrito).value_or(0);
    switch (clase) {
    case Clase::Texto:
        return escrito.trimmed();
    case Clase::Cantidad:
        return numero;
    case Clase::Dinero:
        return basic::Currency::fromDouble(numero);
    }
    return {};
}

} // namespace

panNueArticulo::panNueArticulo(qint64 idProfesional, std::optional<qint64> idArticulo)
    : Form(u"panNueArticulo"_s), idProfesional_(idProfesional), idArticulo_(idArticulo)
{
    setWindowTitle(idArticulo ? u"Modificar artículo"_s : u"Nuevo artículo"_s);
    for (int campo = 0; campo < campos; ++campo) {
        TextBox &texto = Text1.add(campo, tabla[campo].largo);
        texto.setText(tabla[campo].clase == Clase::Texto ? QString() : u"0"_s);
    }
    if (idArticulo) {
        Text1(cActual).setReadOnly(true);
        Text1(cActual).setToolTip(u"Cambia con las entradas y salidas"_s);
    }
    Command1.setDefault(true);
    const auto campo = [this](int indice) {
        return FieldRow(tabla[indice].rotulo.toString(), Text1(indice));
    };
    setContents(this, Column{
                          Fields{campo(cCodigo),
                                 campo(cDescripcion),
                                 {u"&Rubro :"_s, cbRubro},
                                 {u"&Unidad de medida :"_s, cbUnidad},
                                 {u"&Proveedor :"_s, cbProveedor}},
                          Row{Fields{campo(cActual), campo(cMinimo), campo(cIdeal)},
                              Fields{campo(cCosto), campo(cCostoTotal), campo(cVenta)}},
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(600);
    connect(&Command1, &QPushButton::clicked, this, &panNueArticulo::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueArticulo::load()
{
    llenar(cbRubro, rubros);
    llenar(cbUnidad, unidades);
    llenar(cbProveedor, proveedores);
    if (idArticulo_)
        mostrar();
}

dao::Recordset panNueArticulo::abrir() const
{
    return MODULE11::BaseDatos.openRecordset(
        u"Select * from Articulos where idArticulo = %1"_s.arg(idArticulo_.value_or(0)));
}

void panNueArticulo::mostrar()
{
    dao::Recordset fila = abrir();
    if (fila.eof())
        return;
    for (int campo = 0; campo < campos; ++campo)
        Text1(campo).setText(mostrado(fila[tabla[campo].columna], tabla[campo].clase));
    const auto elegir = [&fila](ComboBox &combo, const Lista &lista) {
        const basic::Value id = fila[lista.columna];
        combo.setCurrentIndex(id.isNull() ? 0 : std::max(0, combo.findData(id.integer())));
    };
    elegir(cbRubro, rubros);
    elegir(cbUnidad, unidades);
    elegir(cbProveedor, proveedores);
}

bool panNueArticulo::completo()
{
    const auto falta = [](QWidget &campo, const QString &motivo) {
        MODULE11::MuestraError(motivo);
        markWrong(campo, motivo);
        return false;
    };
    if (Text1(cDescripcion).text().trimmed().isEmpty())
        return falta(Text1(cDescripcion), u"Ingrese la descripción del artículo."_s);
    for (int campo = 0; campo < campos; ++campo)
        if (tabla[campo].clase != Clase::Texto && !basic::isNumeric(Text1(campo).text()))
            return falta(Text1(campo), u"«%1» no es un número."_s.arg(Text1(campo).text()));
    return true;
}

void panNueArticulo::escribir(dao::Recordset &fila)
{
    for (int campo = 0; campo < campos; ++campo)
        if (!Text1(campo).isReadOnly())
            fila[tabla[campo].columna] = leido(Text1(campo).text(), tabla[campo].clase);
    fila[rubros.columna] = clave(cbRubro);
    fila[unidades.columna] = clave(cbUnidad);
    fila[proveedores.columna] = clave(cbProveedor);
}

void panNueArticulo::aceptar()
{
    if (!completo())
        return;
    dao::Recordset fila = abrir();
    if (idArticulo_ && fila.eof()) {
        MODULE11::MuestraError(u"El artículo ya no está en la lista."_s);
        return;
    }
    if (idArticulo_) {
        fila.edit([&] { escribir(fila); });
    } else {
        fila.addNew();
        fila[u"idProfesional"] = idProfesional_;
        escribir(fila);
        fila.update();
        fila.setBookmark(fila.lastModified());
        idArticulo_ = fila[u"idArticulo"].integer();
    }
    answer(u"SI"_s);
}

#include "moc_panNueArticulo.cpp"
