#include "practice/stock/panNueProveedor.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Campo {
    QStringView columna, rotulo;
    int largo;
};
constexpr Campo tabla[] = {
    {u"Empresa", u"&Empresa :", 50},   {u"Persona", u"&Persona :", 50}, {u"Domicilio", u"&Domicilio :", 50},
    {u"Telefono", u"&Teléfono :", 50}, {u"Email", u"E&mail :", 60},     {u"Cuit", u"CU&IT :", 15},
};
enum { cEmpresa };

} // namespace

panNueProveedor::panNueProveedor(std::optional<qint64> idProveedor)
    : Form(u"panNueProveedor"_s), idProveedor_(idProveedor)
{
    setWindowTitle(idProveedor ? u"Modificar proveedor"_s : u"Nuevo proveedor"_s);
    Command1.setDefault(true);
    std::vector<FieldRow> campos;
    int indice = 0;
    for (const Campo &campo : tabla)
        campos.emplace_back(campo.rotulo.toString(), Text1.add(indice++, campo.largo));
    setContents(this, Column{Fields(campos), Stretch(), Row{Stretch(), Command1, Command2}});
    setMinimumWidth(460);
    connect(&Command1, &QPushButton::clicked, this, &panNueProveedor::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueProveedor::load()
{
    if (!idProveedor_)
        return;
    dao::Recordset fila = abrir();
    for (auto &[indice, campo] : Text1)
        if (!fila.eof())
            campo->setText(fila[tabla[indice].columna].text());
}

dao::Recordset panNueProveedor::abrir() const
{
    return MODULE11::BaseDatos.openRecordset(
        u"Select * from Proveedores where idProveedor = %1"_s.arg(idProveedor_.value_or(0)));
}

void panNueProveedor::escribir(dao::Recordset &fila)
{
    for (auto &[indice, campo] : Text1)
        fila[tabla[indice].columna] = campo->text().trimmed();
}

void panNueProveedor::aceptar()
{
    if (Text1(cEmpresa).text().trimmed().isEmpty()) {
        const QString motivo = u"Ingrese el nombre de la empresa."_s;
        MODULE11::MuestraError(motivo);
        markWrong(Text1(cEmpresa), motivo);
        return;
    }
    dao::Recordset fila = abrir();
    if (idProveedor_ && fila.eof()) {
        MODULE11::MuestraError(u"El proveedor ya no está en la lista."_s);
        return;
    }
    if (idProveedor_) {
        fila.edit([&] { escribir(fila); });
    } else {
        fila.addNew();
        escribir(fila);
        fila.update();
        fila.setBookmark(fila.lastModified());
        idProveedor_ = fila[u"idProveedor"].integer();
    }
    answer(u"SI"_s);
}

#include "moc_panNueProveedor.cpp"
