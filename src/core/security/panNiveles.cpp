#include "core/security/panNiveles.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

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

panNiveles::panNiveles()
    : Tabla(u"panNiveles"_s, u"Administración de Niveles de Acceso"_s,
            {{u"Nivel"_s, u"Nivel"_s, {}, 80}, {u"Descripción"_s, u"Descripcion"_s, {}, 300}})
{
    setSource(u"Select * from Niveles order by Nivel"_s);
    Data1.bind(Text1, u"Descripcion"_s);
    agregarDerechos();
    setContents(this, Column{
                          Expanding(DBGrid1),
                          Fields{{u"&Descripción :"_s, Text1}},
                          Tabs(SSTab1, {{u"&Pacientes y turnos"_s, casillas(Pacientes)},
                                        {u"E&studios y laboratorio"_s, casillas(Estudios)},
                                        {u"&Administración"_s, casillas(Administracion)},
                                        {u"&Usuarios y sistema"_s, casillas(Sistema)}}),
                          Row{command(u"Command1"_s, u"&Nuevo"_s, u"nuevo"_s, [this] { agregar(); }),
                              deletes(u"Command2"_s, u"&Eliminar"_s,
                                      {.question = u"Está seguro de eliminar este nivel de acceso"_s}),
                              Stretch(), closes(u"Command3"_s, u"&Cerrar"_s)},
                      });
    resize(900, 580);
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

void panNiveles::rowShown()
{
    const bool hay = Data1.hasRow();
    const bool supervisor = hay && Data1.recordset()[u"Nivel"].integer() == nivelSupervisor;
    for (auto &[indice, casilla] : Check1)
        casilla->setEnabled(hay && !supervisor);
    Text1.setEnabled(hay);
}

void panNiveles::agregar()
{
    dao::Recordset niveles = MODULE11::BaseDatos.openRecordset(Data1.recordSource());
    qint64 numero = 1;
    if (!niveles.eof()) {
        niveles.moveLast();
        numero = niveles[u"Nivel"].integer() + 1;
    }
    addRow([numero](dao::Recordset &nuevo) {
        nuevo[u"Nivel"] = numero;
        nuevo[u"Descripcion"] = u"Nivel "_s + basic::format(numero, u"###0");
    });
}

bool panNiveles::mayDelete()
{
    Data1.updateRecord();
    if (Data1.recordset()[u"Descripcion"].text() != u"Supervisor")
        return true;
    msgBox(u"No se puede borrar el nivel 'SUPERVISOR', debe estar presente en el sistema."_s, Icon::Critical,
           u"Acceso denegado"_s);
    return false;
}

#include "moc_panNiveles.cpp"
