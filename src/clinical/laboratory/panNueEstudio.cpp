#include "clinical/laboratory/panNueEstudio.h"

#include "clinical/laboratory/panNueAg.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueEstudio::panNueEstudio() : Form(u"panNueEstudio"_s)
{
    setWindowTitle(u"Nuevo Estudio"_s);
    mFecha.setFixedWidth(110);
    setContents(this, Column{
                          Expanding(Row{
                              Expanding(Column{Expanding(Above(u"&Estudio :"_s, List1)), Command3}, 3),
                              Expanding(Column{Fields{{u"&Fecha :"_s, Row{mFecha, Stretch()}},
                                                      {u"E&specialista :"_s, mEspecialista}},
                                               Expanding(Above(u"&Resultados :"_s, mResultados)),
                                               Expanding(Above(u"&Observaciones :"_s, mObservaciones))},
                                        4),
                          }),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(820, 500);
    connect(&Command1, &QPushButton::clicked, this, &panNueEstudio::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panNueEstudio::agregar);
}

void panNueEstudio::load()
{
    mFecha.setFecha(basic::today());
    llenar();
    List1.setFocus();
}

void panNueEstudio::llenar()
{
    MODULE11::LlenaLista(List1, u"Select Estudio from TablaEstudios order by Estudio"_s, u"Estudio");
}

void panNueEstudio::agregar()
{
    panNueAg nuevo;
    nuevo.showModal();
    if (nuevo.tag() != u"SI")
        return;
    const QString nombre = estudios::agregarAlCatalogo(nuevo.nombre());
    llenar();
    for (QListWidgetItem *linea : List1.findItems(nombre, Qt::MatchExactly | Qt::MatchCaseSensitive))
        List1.setCurrentItem(linea);
}

void panNueEstudio::aceptar()
{
    if (!List1.selectedItems().isEmpty()) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Debe seleccionar un estudio de la lista."_s);
    List1.setFocus();
}

estudios::Estudio panNueEstudio::estudio()
{
    return {mFecha.fecha(), List1.selectedItems().first()->text(), mEspecialista.text(),
            mResultados.toPlainText(), mObservaciones.toPlainText()};
}

#include "moc_panNueEstudio.cpp"
