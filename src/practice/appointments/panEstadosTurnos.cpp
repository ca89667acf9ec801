#include "practice/appointments/panEstadosTurnos.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panEstadosTurnos::panEstadosTurnos() : Form(u"panEstadosTurnos"_s)
{
    setWindowTitle(u"Estados de los turnos"_s);
    for (CommandButton *boton : {&Command1, &Command2, &Command3})
        boton->setAutoDefault(false);
    Data1.setDatabase(&MODULE11::BaseDatos);
    DBGrid1.setSource(Data1, {{u"Estado"_s, u"Estado"_s, {}, 320}});
    setContents(this, Column{
                          Expanding(DBGrid1),
                          Row{Command1, Command2, Stretch(), Command3},
                      });
    resize(430, 380);
    connect(&Data1, &Data::reposition, this, [this] { Command2.setEnabled(Data1.hasRow()); });
    connect(&Command1, &QPushButton::clicked, this, &panEstadosTurnos::command1Click);
    connect(&Command2, &QPushButton::clicked, this, &panEstadosTurnos::command2Click);
    connect(&Command3, &QPushButton::clicked, this, &panEstadosTurnos::unload);
}

void panEstadosTurnos::load()
{
    Data1.setRecordSource(u"Select * from EstadosTurnos order by Estado"_s);
    Data1.refresh();
}

void panEstadosTurnos::command1Click()
{
    const auto nombre = inputBox(u"Escriba el nombre del nuevo estado :"_s, u"Nuevo estado"_s);
    if (!nombre || nombre->trimmed().isEmpty())
        return;
    dao::Recordset estados = MODULE11::BaseDatos.openRecordset(u"EstadosTurnos"_s);
    estados.addNew();
    estados[u"Estado"] = *nombre;
    estados.update();
    Data1.refresh();
}

void panEstadosTurnos::command2Click()
{
    if (!MODULE11::PreguntaSiBorra(u"ATENCION: Desea eliminar éste registro?"_s))
        return;
    Data1.change([](dao::Recordset &estados) { estados.deleteRow(); });
    Data1.refresh();
}

#include "moc_panEstadosTurnos.cpp"
