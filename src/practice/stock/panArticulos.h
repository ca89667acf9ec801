#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "practice/stock/stock.h"
#include "practice/stock/tablaChica.h"

/// "Administración de artículos y stock" of each professional: articles, their movements, the suppliers and
/// the small tables that they take names from.
class panArticulos : public forms::Form
{
    Q_OBJECT
public:
    panArticulos();

protected:
    void load() override;

private:
    forms::CommandButton &orden(const QString &nombre, const QString &rotulo, const QString &icono,
                                void (panArticulos::*trabajo)());
    forms::Item hojaDeArticulos();
    forms::Item hojaDeMovimientos();
    forms::Item hojaDeProveedores();
    forms::Item hojaDeTablas();
    void conectar();

    std::optional<qint64> profesional() const;
    /// The professional whose stock it is; nothing, once told, while none is chosen.
    std::optional<qint64> profesionalElegido();
    /// The key of the row chosen in a list; nothing, once told, without one.
    std::optional<qint64> filaElegida(forms::Data &filas, const QString &clave, const QString &aviso);

    void mostrarProfesional();
    void leerArticulos(std::optional<qint64> elegido = {});
    void mostrarMovimientos();
    void leerMovimientos();
    void leerProveedores(std::optional<qint64> elegido = {});
    void llenarFiltros();

    void nuevoArticulo();
    void modificarArticulo();
    void borrarArticulo();
    void entrar() { mover(stock::Sentido::Entrada); }
    void sacar() { mover(stock::Sentido::Salida); }
    void mover(stock::Sentido sentido);
    void nuevoProveedor();
    void modificarProveedor();
    void borrarProveedor();
    void informar();
    void informarFaltantes();
    void informarReposicion();

    forms::ComboBox cbPrest{QStringLiteral("cbPrest")};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Data Data1{QStringLiteral("Data1")}; ///< articles
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::Data Data2{QStringLiteral("Data2")}; ///< movements
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::Data Data3{QStringLiteral("Data3")}; ///< suppliers
    forms::DBGrid DBGrid3{QStringLiteral("DBGrid3")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ComboBox cbArticulo{QStringLiteral("cbArticulo"), {stock::todos}};
    forms::ComboBox cbTipoMov{QStringLiteral("cbTipoMov"), {stock::todos}};
    stock::TablaChica rubros;
    stock::TablaChica unidades;
    stock::TablaChica tipos;
};
