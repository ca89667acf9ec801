#include "practice/tariffs/panObras.h"

#include "platform/forms/boxes.h"
#include "platform/forms/wrong.h"
#include "practice/tariffs/importe.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cNombre, cObservaciones, cPrecio };
constexpr int cifras = 20;

} // namespace

panObras::panObras()
    : Catalogo(u"panObras"_s, {.nombre = u"Obra Social"_s,
                               .id = u"idObraSocial"_s,
                               .preguntaDeBaja = u"Borra esta O. Social de la tabla"_s,
                               .campos = {{u"Descripcion"_s, 60}, {u"Observaciones"_s, 255}}})
{
    setWindowTitle(u"Listado de Coberturas médicas"_s);
    mDato.add(cPrecio, cifras);
    mDato(cPrecio).setMaximumWidth(140);
    setContents(this, Column{
                          Expanding(List1),
                          Fields{{u"N&ombre :"_s, mDato(cNombre)},
                                 {u"O&bservaciones :"_s, mDato(cObservaciones)},
                                 {u"&Precio de la consulta :"_s, Row{mDato(cPrecio), Stretch()}}},
                          botones(Row{Command1, Command2}),
                      });
    resize(620, 540);
    connect(&Command2, &QPushButton::clicked, this, &panObras::unload);
}

void panObras::listar(dao::Recordset &filas)
{
    for (; !filas.eof(); filas.moveNext())
        agregarALaLista(filas);
}

void panObras::mostrar(dao::Recordset *fila)
{
    Catalogo::mostrar(fila);
    mDato(cPrecio).setText(fila ? importes::paraEditar((*fila)[u"Precio Consulta"]) : QString());
}

void panObras::escribir(dao::Recordset &fila)
{
    Catalogo::escribir(fila);
    fila[u"Precio Consulta"] = *importes::escrito(mDato(cPrecio).text());
}

void panObras::nuevo()
{
    List1.clearSelection();
    for (auto &[indice, campo] : mDato)
        campo->clear();
    mDato(cNombre).setFocus();
}

/// A text of blanks alone is one, which is stored as "-".
QWidget *panObras::faltante()
{
    for (const int campo : {cNombre, cObservaciones})
        if (mDato(campo).text().isEmpty())
            return &mDato(campo);
    return importes::escrito(mDato(cPrecio).text()) ? nullptr : &mDato(cPrecio);
}

void panObras::guardar()
{
    QWidget *campo = faltante();
    if (!campo) {
        Catalogo::guardar();
        return;
    }
    msgBox(u"Error, Debe completar los datos !"_s, Icon::Critical, u"Error"_s);
    markWrong(*campo, campo == &mDato(cPrecio) ? u"Tiene que ser un número"_s : u"No puede faltar"_s);
}

#include "moc_panObras.cpp"
