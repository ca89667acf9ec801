#include "clinical/catalogues/catalogoClasificado.h"

#include "core/services/services.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;
using catalogos::CatalogoClasificado;

namespace
{

const QString todos = u"<Todos>"_s;

} // namespace

CatalogoClasificado::CatalogoClasificado(const QString &ventana, Tabla tabla, const QString &clasificaciones)
    : Catalogo(ventana, std::move(tabla)), clasificaciones_(clasificaciones)
{
    for (ComboBox *combo : {&Combo1, &Combo2})
        combo->lineEdit()->setMaxLength(60);
    ponerFiltro(todos);
    Command5.setToolTip(u"Agrega lo escrito en el filtro a las clasificaciones"_s);
    connect(&Combo1, &QComboBox::activated, this, [this](int entrada) {
        ponerFiltro(Combo1.itemText(entrada));
        llenar();
    });
    connect(&Command5, &QPushButton::clicked, this, &CatalogoClasificado::agregarClasificacion);
}

Item CatalogoClasificado::filtroYLista()
{
    return Column{Fields{{u"&Ver :"_s, Row{Expanding(Combo1), Command5}}}, Expanding(List1)};
}

void CatalogoClasificado::preparar()
{
    Combo1.addItem(todos);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(clasificaciones_, dao::Recordset::Kind::Table);
    for (filas.setIndex(u"Nombre"); !filas.eof(); filas.moveNext()) {
        Combo1.addItem(filas[u"Nombre"].text());
        Combo2.addItem(filas[u"Nombre"].text());
    }
    Combo1.setValue(filtro_);
    Combo2.setValue({});
}

QString CatalogoClasificado::filtro() const
{
    return filtro_ == todos ? QString() : filtro_;
}

bool CatalogoClasificado::pasaElFiltro(dao::Recordset &fila) const
{
    return filtro().isEmpty() ||
           fila[u"Clasificacion"].text().trimmed().compare(filtro().trimmed(), Qt::CaseInsensitive) == 0;
}

void CatalogoClasificado::ponerFiltro(const QString &clasificacion)
{
    filtro_ = clasificacion;
    Combo1.setValue(clasificacion);
}

void CatalogoClasificado::mostrar(dao::Recordset *fila)
{
    Catalogo::mostrar(fila);
    Combo2.setValue(fila ? (*fila)[u"Clasificacion"].text() : QString());
}

void CatalogoClasificado::escribir(dao::Recordset &fila)
{
    Catalogo::escribir(fila);
    const QString clasificacion = Combo2.value().trimmed();
    fila[u"Clasificacion"] = clasificacion.isEmpty() ? todos : clasificacion;
}

void CatalogoClasificado::nuevo()
{
    List1.clearSelection();
    mostrar(nullptr);
    mDato(0).setFocus();
}

/// The list goes on showing what it showed: a new classification has no rows yet.
void CatalogoClasificado::agregarClasificacion()
{
    const QString nombre = Combo1.value().trimmed();
    if (nombre.isEmpty()) {
        MODULE11::MuestraError(u"Escriba la clasificación que quiere agregar."_s);
        Combo1.setFocus();
        return;
    }
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(clasificaciones_, dao::Recordset::Kind::Table);
    filas.setIndex(u"Nombre");
    filas.seek(u"=", nombre);
    if (nombre == todos || !filas.noMatch()) {
        MODULE11::MuestraError(u"Clasificacion ya almacenada."_s);
        return;
    }
    filas.addNew();
    filas[u"Nombre"] = nombre;
    filas.update();
    Combo1.addItem(nombre);
    Combo2.addItem(nombre);
    Combo1.setValue(filtro_);
}

#include "moc_catalogoClasificado.cpp"
