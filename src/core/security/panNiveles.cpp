#include "core/security/panNiveles.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr qint64 nivelSupervisor = 3;

enum Ficha { Pacientes, Estudios, Administracion, Sistema };

/// Subjects have three rights each: to consult, to add, to delete.
constexpr int columnas = 3;

struct Derecho {
    Ficha ficha;
    const char *clave, *titulo;
};

// clang-format off
constexpr Derecho derechos[] = {
    {Pacientes, "IngresarAPacientes", "Consultar Pacientes"},
    {Pacientes, "AgregarPacientes", "Agregar Pacientes"},
    {Pacientes, "BorrarPacientes", "Borrar Pacientes"},
    {Pacientes, "IngresarATurnos", "Consultar Turnos"},
    {Pacientes, "AgregarTurnos", "Agregar Turnos"},
    {Pacientes, "BorrarTurnos", "Borrar Turnos"},
    {Pacientes, "IngresarAConsultas", "Consultar Cons.Medicas"},
    {Pacientes, "AgregarConsultas", "Agregar Consultas"},
    {Pacientes, "BorrarConsultas", "Borrar Consultas"},
    {Estudios, "IngresarAEstudios", "Consultar Estudios"},
    {Estudios, "AgregarEstudios", "Agregar Estudios"},
    {Estudios, "BorrarEstudios", "Borrar Estudios"},
    {Estudios, "IngresarALaboratorio", "Consultar Laboratorio"},
    {Estudios, "AgregarLaboratorio", "Agregar Laboratorio"},
    {Estudios, "BorrarLaboratorio", "Borrar Laboratorio"},
    {Administracion, "IngresarAProfesionales", "Consultar Profesionales"},
    {Administracion, "AgregarProfesionales", "Agregar Profesionales"},
    {Administracion, "BorrarProfesionales", "Borrar Profesionales"},
    {Administracion, "IngresarAEmpresas", "Consultar Empresas"},
    {Administracion, "AgregarEmpresas", "Agregar Empresas"},
    {Administracion, "BorrarEmpresas", "Borrar Empresas"},
    {Administracion, "IngresarAFarmacia", "Consultar Farmacia"},
    {Administracion, "AgregarFarmacia", "Agregar Farmacia"},
    {Administracion, "BorrarFarmacia", "Borrar Farmacia"},
    {Administracion, "IngresarAFacturacion", "Consultar Facturación"},
    {Administracion, "AgregarFacturacion", "Agregar Facturación"},
    {Administracion, "BorrarFacturacion", "Borrar Facturación"},
    {Sistema, "IngresarAUsuarios", "Consultar Usuarios"},
    {Sistema, "AgregarUsuarios", "Agregar Usuarios"},
    {Sistema, "BorrarUsuarios", "Borrar Usuarios"},
    {Sistema, "IngresarAControlAcceso", "Administrar claves de acceso / usuarios y niveles"},
    {Sistema, "ConsultarEstadistica", "Consultar estadísticas"},
    {Sistema, "IngresarAInformes", "Ingresar a informes"},
    {Sistema, "IngresarAServicesSistema", "Ingresar a configurar el sistema"},
    {Sistema, "IngresarACie10", "Ingresar al CIE 10"},
    {Sistema, "IngresarARecetario", "Ingresar a recetario"},
    {Sistema, "IngresarABibliotecaRecursos", "Ingresar a Biblioteca de recursos"},
    {Sistema, "IngresarAEditorTextos", "Ingresar al editor de textos"},
    {Sistema, "IngresarATablasApoyo", "Ingresar a tablas de apoyo"},
};
// clang-format on

} // namespace

panNiveles::panNiveles() : Form(u"panNiveles"_s)
{
    setWindowTitle(u"Administración de Niveles de Acceso"_s);
    Data1.setDatabase(&MODULE11::BaseDatos);
    DBGrid1.setSource(Data1,
                      {{u"Nivel"_s, u"Nivel"_s, {}, 80}, {u"Descripción"_s, u"Descripcion"_s, {}, 300}});
    Data1.bind(Text1, u"Descripcion"_s);
    agregarDerechos();
    setContents(this, Column{
                          Expanding(DBGrid1),
                          Fields{{u"&Descripción :"_s, Text1}},
                          Tabs(SSTab1, {{u"&Pacientes y turnos"_s, casillas(Pacientes)},
                                        {u"E&studios y laboratorio"_s, casillas(Estudios)},
                                        {u"&Administración"_s, casillas(Administracion)},
                                        {u"&Usuarios y sistema"_s, casillas(Sistema)}}),
                          Row{Command1, Command2, Stretch(), Command3},
                      });
    resize(900, 580);
    connect(&Data1, &Data::reposition, this, &panNiveles::mostrarFila);
    connect(&Command1, &QPushButton::clicked, this, &panNiveles::command1Click);
    connect(&Command2, &QPushButton::clicked, this, &panNiveles::command2Click);
    connect(&Command3, &QPushButton::clicked, this, &panNiveles::unload);
}

/// A right that is changed holds at once, in the sessions that are open too.
void panNiveles::agregarDerechos()
{
    int indice = 0;
    for (const Derecho &derecho : derechos) {
        CheckBox &casilla = Check1.add(indice++, QString::fromUtf8(derecho.titulo));
        Data1.bind(casilla, QString::fromUtf8(derecho.clave));
        connect(&casilla, &QAbstractButton::clicked, this, [this] { Data1.updateRecord(); });
    }
}

Item panNiveles::casillas(int ficha)
{
    std::vector<Item> items;
    int indice = 0;
    for (const Derecho &derecho : derechos) {
        if (derecho.ficha == ficha)
            items.emplace_back(Check1(indice));
        ++indice;
    }
    return Column{Grid(columnas, std::move(items)), Stretch()};
}

void panNiveles::load()
{
    Data1.setRecordSource(u"Select * from Niveles order by Nivel"_s);
    Data1.refresh();
}

bool panNiveles::queryUnload()
{
    Data1.updateRecord();
    return true;
}

void panNiveles::mostrarFila()
{
    const bool hay = Data1.hasRow();
    const bool supervisor = hay && Data1.recordset()[u"Nivel"].integer() == nivelSupervisor;
    for (auto &[indice, casilla] : Check1)
        casilla->setEnabled(hay && !supervisor);
    Text1.setEnabled(hay);
    Command2.setEnabled(hay);
}

void panNiveles::command1Click()
{
    Data1.change([](dao::Recordset &niveles) {
        qint64 numero = 1;
        if (niveles.rowCount() > 0) {
            niveles.moveLast();
            numero = niveles[u"Nivel"].integer() + 1;
        }
        niveles.addNew();
        niveles[u"Nivel"] = numero;
        niveles[u"Descripcion"] = u"Nivel "_s + basic::format(numero, u"###0");
        niveles.update();
        niveles.setBookmark(niveles.lastModified());
    });
}

void panNiveles::command2Click()
{
    Data1.updateRecord();
    if (Data1.recordset()[u"Descripcion"].text() == u"Supervisor") {
        msgBox(u"No se puede borrar el nivel 'SUPERVISOR', debe estar presente en el sistema."_s,
               Icon::Critical, u"Acceso denegado"_s);
        return;
    }
    if (!MODULE11::PreguntaSiBorra(u"Está seguro de eliminar este nivel de acceso"_s))
        return;
    Data1.updateControls(); // what was typed goes with the row
    Data1.recordset().deleteRow();
    Data1.refresh();
}

#include "moc_panNiveles.cpp"
