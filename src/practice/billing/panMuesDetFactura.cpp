#include "practice/billing/panMuesDetFactura.h"

#include "platform/forms/layout.h"
#include "practice/billing/facturacion.h"

using namespace Qt::StringLiterals;
using namespace forms;

panMuesDetFactura::panMuesDetFactura(qint64 idFacturacion) : Form(u"panMuesDetFactura"_s)
{
    setWindowTitle(u"Detalle de una facturacion"_s);
    DBGrid1.setSource(Data1, columnas());
    Data1.setRecordSource(facturacion::detalle(idFacturacion));
    setContents(this, Column{Expanding(DBGrid1), Row{Stretch(), Command1}});
    resize(760, 440);
    connect(&Command1, &QPushButton::clicked, this, &panMuesDetFactura::unload);
}

std::vector<GridColumn> panMuesDetFactura::columnas()
{
    return {{u"Paciente"_s, u"Apellido y Nombres"_s, {}, 200},
            {u"Nro Orden"_s, u"NroOrden"_s, {}, 110},
            {u"Código"_s, u"Codigo"_s, {}, 80},
            {u"Prestación"_s, u"Descripcion"_s, {}, 210},
            {u"Importe"_s, u"Importe"_s, u"#,##0.00"_s, 100}};
}

void panMuesDetFactura::load()
{
    Data1.refresh();
}

#include "moc_panMuesDetFactura.cpp"
