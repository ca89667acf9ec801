#include "practice/affiliates/panConfCamposImport.h"

#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;

panConfCamposImport::panConfCamposImport()
    : Tabla(u"panConfCamposImport"_s, u"Configuración de campos para importar"_s,
            {{u"Campo del afiliado"_s, u"CampoEnAfiliado"_s, {}, 240},
             {u"Posición inicial"_s, u"PosicionInicial"_s, {}, 120},
             {u"Tamaño"_s, u"Tamano"_s, {}, 90},
             {u"Índice"_s, u"CampoIndex"_s, {}, 90}})
{
    setSource(u"Select * from CamposImport order by PosicionInicial"_s);
    DBGrid1.setEditable(true);
    Data1.bind(cbCampo, u"CampoEnAfiliado"_s);
    Data1.bind(txPosicion, u"PosicionInicial"_s);
    Data1.bind(txTamano, u"Tamano"_s);
    setContents(this,
                Column{
                    Expanding(DBGrid1),
                    Row{Expanding(Fields{{u"Ca&mpo :"_s, cbCampo}}),
                        Fields{{u"&Posición inicial :"_s, txPosicion}}, Fields{{u"&Tamaño :"_s, txTamano}}},
                    Row{command(u"Command1"_s, u"A&gregar"_s, u"agregar"_s, [this] { agregar(); }),
                        deletes(u"Command2"_s, u"&Quitar"_s, {.question = u"Quita este campo"_s}),
                        rowCommand(u"Command3"_s, u"Tomar &cambios"_s, u"guardar"_s,
                                   [this] { Data1.updateRecord(); }),
                        rowCommand(u"Command4"_s, u"&Asignar como índice el registro seleccionado"_s,
                                   u"aceptar"_s, [this] { asignarIndice(); }),
                        Stretch(), closes(u"Command5"_s, u"&Salir"_s)},
                });
    resize(820, 460);
}

void panConfCamposImport::load()
{
    const dao::TableDef pacientes = MODULE11::BaseDatos.tableDef(u"Pacientes");
    for (const dao::FieldDef &columna : pacientes.fields())
        cbCampo.addItem(columna.name);
    Tabla::load();
}

void panConfCamposImport::rowShown()
{
    for (QWidget *campo : std::initializer_list<QWidget *>{&cbCampo, &txPosicion, &txTamano})
        campo->setEnabled(Data1.hasRow());
}

void panConfCamposImport::agregar()
{
    addRow([](dao::Recordset &fila) {
        fila[u"PosicionInicial"] = 1;
        fila[u"Tamano"] = 1;
        fila[u"CampoIndex"] = false;
    });
    cbCampo.setFocus();
}

/// One key at most.
void panConfCamposImport::asignarIndice()
{
    Data1.updateRecord();
    dao::Batch juntos(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"UPDATE CamposImport SET CampoIndex = FALSE"_s);
    Data1.set(u"CampoIndex"_s, true);
    juntos.commit();
    reread();
}

#include "moc_panConfCamposImport.cpp"
