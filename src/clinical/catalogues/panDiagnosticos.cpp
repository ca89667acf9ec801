#include "clinical/catalogues/panDiagnosticos.h"

using namespace Qt::StringLiterals;
using namespace forms;

panDiagnosticos::panDiagnosticos()
    : catalogos::CatalogoClasificado(
          u"panDiagnosticos"_s,
          {.nombre = u"DIAGPERSONALES"_s,
           .id = u"idDiagPersonales"_s,
           .preguntaDeBaja = u"Borra este Diagnóstico de la tabla"_s,
           .campos = {{u"Descripcion"_s, 255}, {u"Observaciones"_s, 255}, {u"Sintomas"_s}}},
          u"CLASPERSONALES"_s)
{
    setWindowTitle(u"Pantalla de Diagnósticos patológicos"_s);
    setContents(this, Column{
                          Expanding(filtroYLista()),
                          Fields{{u"Nombre / &Sindrome :"_s, mDato(0)},
                                 {u"&Observaciones :"_s, mDato(1)},
                                 {u"Sintomas &relacionados :"_s, mDato(2)},
                                 {u"Aparato o c&lasificación :"_s, Combo2}},
                          botones(Command1),
                      });
    resize(720, 620);
}

void panDiagnosticos::soloMantenimiento()
{
    Command1.setText(u"&Cerrar"_s);
}

void panDiagnosticos::preparar()
{
    catalogos::CatalogoClasificado::preparar();
    if (!tag().isEmpty())
        ponerFiltro(tag());
}

/// By classification; within the filter, the rows that follow one another in that order.
void panDiagnosticos::listar(dao::Recordset &filas)
{
    filas.setIndex(u"clasificacion");
    if (!filtro().isEmpty())
        filas.seek(u"=", filtro());
    if (!filtro().isEmpty() && filas.noMatch())
        return;
    for (; !filas.eof() && pasaElFiltro(filas); filas.moveNext())
        agregarALaLista(filas);
}

#include "moc_panDiagnosticos.cpp"
