#include "practice/cashbook/panCuentas.h"

#include "core/services/services.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

panCuentas::panCuentas()
    : Catalogo(u"panCuentas"_s, {.nombre = u"Cuentas"_s,
                                 .id = u"idCuenta"_s,
                                 .preguntaDeBaja = u"Borra esta Cuenta de la tabla"_s,
                                 .campos = {{u"Descripcion"_s, 50}, {u"Observaciones"_s, 255}}})
{
    setWindowTitle(u"Plan de cuentas"_s);
    setContents(this, Column{
                          Expanding(List1),
                          Fields{{u"&Descripción :"_s, mDato(0)}, {u"&Observaciones :"_s, mDato(1)}},
                          botones(Row{Command1, Command2}),
                      });
    resize(560, 460);
    connect(&Command2, &QPushButton::clicked, this, &panCuentas::unload);
}

void panCuentas::listar(dao::Recordset &filas)
{
    for (; !filas.eof(); filas.moveNext())
        agregarALaLista(filas);
}

void panCuentas::nuevo()
{
    for (auto &[indice, campo] : mDato)
        campo->clear();
    mDato(0).setFocus();
}

/// A movement could not be written to an account without a name.
void panCuentas::guardar()
{
    if (!nombre().isEmpty()) {
        Catalogo::guardar();
        return;
    }
    const QString motivo = u"Ingrese el nombre de la cuenta."_s;
    MODULE11::MuestraError(motivo);
    markWrong(mDato(0), motivo);
}

void panCuentas::trasBorrar()
{
    if (MODULE11::Pregunta(u"Actualiza Tabla ahora"_s))
        Catalogo::trasBorrar();
}

#include "moc_panCuentas.cpp"
