#include "paediatrics/anthropometry/panCrecimiento.h"

#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "paediatrics/anthropometry/medidas.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panCrecimiento::panCrecimiento() : Form(u"panCrecimiento"_s)
{
    setWindowTitle(u"Pantalla de Crecimiento / Desarrollo y Antropometría"_s);
    Command8.setEnabled(false);
    for (CommandButton *boton : {&Command2, &Command8, &Command10, &Command1})
        boton->setAutoDefault(false);
    Data1.setDatabase(&MODULE11::BaseDatos);
    DBGrid1.setSource(Data1, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 130},
                              {u"Peso"_s, u"Peso"_s, {}, 120},
                              {u"Talla"_s, u"Talla"_s, {}, 120},
                              {u"Pc"_s, u"Pc"_s, {}, 120}});
    setContents(this, Column{
                          Label1,
                          Expanding(DBGrid1),
                          Row{Command2, Command8, Command10, Stretch(), Command1},
                      });
    resize(620, 420);
    MODULE11::MuestraAyudante(
        u"Para agregar mediciones realizadaas al paciente, presione el botón \"Tomar medidas\".  En \"Curvas de crecimiento, obtendrá graficas de evolución del paciente."_s);
    connect(&Data1, &Data::reposition, this, [this] { Command8.setEnabled(!Data1.recordset().eof()); });
    connect(&Command1, &QPushButton::clicked, this, &panCrecimiento::unload);
    connect(&Command2, &QPushButton::clicked, this, &panCrecimiento::command2Click);
    connect(&Command8, &QPushButton::clicked, this, &panCrecimiento::command8Click);
    connect(&Command10, &QPushButton::clicked, this, &panCrecimiento::command10Click);
}

void panCrecimiento::activate()
{
    Data1.setRecordSource(u"select * from medidas where paciente = %1 order by fecha"_s.arg(tag()));
    Data1.refresh();
}

void panCrecimiento::command2Click()
{
    paediatrics::TomarMedidas(tag());
    Data1.refresh();
}

void panCrecimiento::command8Click()
{
    if (Data1.recordset().eof() || !MODULE11::PreguntaSiBorra(u"Borra este registro de medidas??"_s))
        return;
    Data1.change([](dao::Recordset &medidas) {
        if (medidas.editMode() != dao::Recordset::EditMode::None)
            medidas.update();
        medidas.deleteRow();
    });
    Data1.refresh();
}

void panCrecimiento::command10Click()
{
    dao::Recordset pacientes =
        MODULE11::BaseDatos.openRecordset(u"Select * from Pacientes where numero ="_s + tag());
    const bool existe = !pacientes.eof();
    pacientes.close();
    if (existe)
        screens::showModal("panMuesCurvas", tag());
}

#include "moc_panCrecimiento.cpp"
