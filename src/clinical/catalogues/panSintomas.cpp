#include "clinical/catalogues/panSintomas.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSintomas::panSintomas()
    : Catalogo(u"panSintomas"_s, {.nombre = u"Sintomas"_s,
                                  .id = u"idSintoma"_s,
                                  .preguntaDeBaja = u"Borra este síntoma de la tabla"_s,
                                  .campos = {{u"Descripcion"_s, 255}, {u"Observaciones"_s, 255}}})
{
    setWindowTitle(u"Pantalla de Síntomas"_s);
    List1.setSelectionMode(QAbstractItemView::ExtendedSelection);
    setContents(this, Column{
                          Expanding(List1),
                          Label1,
                          Fields{{u"&Síntoma :"_s, mDato(0)}, {u"&Observaciones :"_s, mDato(1)}},
                          botones(Row{Command1, Command2}),
                      });
    resize(640, 560);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

QString panSintomas::respuestaAlCerrar() const
{
    return u"NO"_s;
}

void panSintomas::listar(dao::Recordset &filas)
{
    for (; !filas.eof(); filas.moveNext())
        agregarALaLista(filas);
}

void panSintomas::nuevo()
{
    const QString sintoma =
        inputBox(u"Ingrese el nombre del nuevo sintoma"_s, u"Síntomas"_s).value_or(QString()).trimmed();
    if (sintoma.isEmpty())
        return;
    dao::Recordset registrado = MODULE11::BaseDatos.openRecordset(
        u"Select * from sintomas where Descripcion = "_s + dao::quoted(sintoma));
    if (!registrado.eof()) {
        msgBox(u"Síntoma ya registrado"_s, Icon::Critical, u"Error"_s);
        return;
    }
    registrado.addNew();
    registrado[u"Descripcion"] = sintoma;
    registrado.update();
    registrado.setBookmark(registrado.lastModified());
    llenar();
    elegirFila(registrado[u"idSintoma"].integer());
}

void panSintomas::trasBorrar()
{
    if (MODULE11::Pregunta(u"Actualiza Tabla ahora"_s))
        Catalogo::trasBorrar();
}

#include "moc_panSintomas.cpp"
