#include "practice/professionals/panProfesionales.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "practice/professionals/panNueProfesional.h"
#include "practice/professionals/usuariosMedicos.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Campo {
    QStringView campo;
    int largo;
};
enum { cNombre, cDomicilio, cLocalidad, cTelefonos };
constexpr Campo campos[] = {{u"Nombre", 50}, {u"Domicilio", 100}, {u"Localidad", 100}, {u"Telefonos", 60}};

constexpr int minutosPorPaso = 5;
const QString interturnosHabitual = u"30"_s;

} // namespace

panProfesionales::panProfesionales()
    : Tabla(u"panProfesionales"_s, u"Tabla de Profesionales / Usuarios"_s,
            {{u"Nombre"_s, u"Nombre"_s, {}, 200}, {u"Especialidad"_s, u"Especialidad"_s, {}, 110}})
{
    setSource(u"Select * from Profesionales"_s);
    DBGrid1.setMinimumWidth(330);
    int indice = 0;
    for (const Campo &campo : campos)
        Data1.bind(Text1.add(indice++, campo.largo), campo.campo.toString());
    Combo1.lineEdit()->setMaxLength(60);
    Data1.bind(Combo1, u"Especialidad"_s);
    Data1.bind(Text3, u"Observaciones"_s);
    Data1.bind(Text2, u"interturnos"_s);
    Text2.setMaximumWidth(60);
    setContents(
        this,
        Column{
            Expanding(Row{DBGrid1, Expanding(Tabs(SSTab1, {{u"&Datos"_s, fichaDatos()},
                                                           {u"&Política de permisos"_s, fichaPermisos()},
                                                           {u"&Horarios"_s, fichaHorarios()}}))}),
            Row{command(u"Command1"_s, u"&Nuevo..."_s, u"nuevo"_s, [this] { agregar(); },
                        {.gate = u"AgregarProfesionales"_s}),
                deletes(
                    u"Command2"_s, u"&Eliminar"_s,
                    {.gate = u"BorrarProfesionales"_s, .question = u"Borra este profesional de la lista"_s}),
                rowCommand(u"Command3"_s, u"&Guardar"_s, u"guardar"_s, [this] { Data1.updateRecord(); }),
                rowCommand(u"Command4"_s, u"&Buscar"_s, u"buscar"_s, [this] { buscar(); }),
                rowCommand(u"Command5"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }), Stretch(),
                closes(u"Command9"_s, u"&Cerrar"_s)},
        });
    resize(1240, 640);
    conectar();
}

Item panProfesionales::fichaDatos()
{
    return Fields{{u"N&ombre :"_s, Text1(cNombre)},       {u"E&specialidad :"_s, Combo1},
                  {u"Do&micilio :"_s, Text1(cDomicilio)}, {u"&Localidad :"_s, Text1(cLocalidad)},
                  {u"&Teléfonos :"_s, Text1(cTelefonos)}, {u"Obser&vaciones :"_s, Text3}};
}

Item panProfesionales::fichaPermisos()
{
    return Column{
        Group(Frame1, Column{Option1, Option2, Option3}),
        Space(12),
        Label8,
        Fields{{u"&Usuario predeterminado a éste profesional :"_s, Combo2}},
        Stretch(),
    };
}

Item panProfesionales::fichaHorarios()
{
    return Column{
        Fields{{u"&Minutos entre turnos :"_s, Row{Text2, UpDown2, Stretch(), Label9}}},
        herramienta,
        calendario,
        Stretch(),
    };
}

void panProfesionales::conectar()
{
    connect(&Combo2, &QComboBox::activated, this, [this] {
        Data1.updateRecord();
        escribir(u"idUsuario"_s, practice::usuarioElegido(Combo2));
    });
    connect(&Option1, &QAbstractButton::clicked, this, [this] { escribir(u"TipoPermiso"_s, u"U"_s); });
    connect(&Option2, &QAbstractButton::clicked, this, [this] { escribir(u"TipoPermiso"_s, u"L"_s); });
    connect(&Option3, &QAbstractButton::clicked, this, [this] { escribir(u"TipoPermiso"_s, u"T"_s); });
    connect(&UpDown2, &UpDown::stepped, this, &panProfesionales::pasoDeInterturnos);
    connect(&herramienta, &practice::HerramientaHorarios::cambiado, &calendario,
            &practice::CalendarioAnual::irA);
}

void panProfesionales::load()
{
    practice::llenaUsuariosMedicos(Combo2);
    Tabla::load();
}

void panProfesionales::rowShown()
{
    const bool hay = Data1.hasRow();
    SSTab1.setEnabled(hay);
    dao::Recordset &fila = Data1.recordset();
    Label8.setCaption(u"Seleccione el perfil de usuario asignado a "_s +
                      (hay ? fila[u"Nombre"].text() : QString()));
    practice::eligeUsuario(Combo2, hay ? fila[u"idUsuario"].value() : basic::Null{});
    mostrarPermiso(hay ? fila[u"TipoPermiso"].text() : QString());
    if (hay && fila[u"interturnos"].isNull()) {
        const QSignalBlocker sinEditar(Text2); // shown, not stored
        Text2.setText(interturnosHabitual);
    }
    herramienta.setProfesional(hay ? fila[u"idProfesional"].integer() : 0,
                               hay ? fila[u"Nombre"].text() : QString());
    calendario.setProfesional(hay ? fila[u"idProfesional"].integer() : 0);
}

/// A permission that was never settled shows no option.
void panProfesionales::mostrarPermiso(const QString &permiso)
{
    for (OptionButton *opcion : {&Option1, &Option2, &Option3})
        opcion->setAutoExclusive(false);
    Option1.setChecked(permiso == u"U");
    Option2.setChecked(permiso == u"L");
    Option3.setChecked(permiso == u"T");
    for (OptionButton *opcion : {&Option1, &Option2, &Option3})
        opcion->setAutoExclusive(true);
}

void panProfesionales::escribir(const QString &campo, const basic::Value &valor)
{
    Data1.set(campo, valor);
}

void panProfesionales::pasoDeInterturnos(int paso)
{
    const auto minutos = basic::toNumber(Text2.text());
    if (!minutos)
        Text2.setText(interturnosHabitual);
    else
        Text2.setText(QString::number(qMax(minutosPorPaso, qRound(*minutos) + paso * minutosPorPaso)));
}

void panProfesionales::agregar()
{
    panNueProfesional nuevo;
    nuevo.showModal();
    if (nuevo.tag() != u"SI")
        return;
    addRow([&](dao::Recordset &profesionales) {
        profesionales[u"Nombre"] = nuevo.nombre();
        profesionales[u"Especialidad"] = nuevo.especialidad();
        profesionales[u"Domicilio"] = nuevo.domicilio();
        profesionales[u"Localidad"] = nuevo.localidad();
        profesionales[u"Telefonos"] = nuevo.telefonos();
        profesionales[u"observaciones"] = nuevo.observaciones() + u'.';
        profesionales[u"tipopermiso"] = u"U"_s;
        profesionales[u"idUsuario"] = nuevo.idUsuario();
    });
}

bool panProfesionales::mayDelete()
{
    const QString nombre = Data1.recordset()[u"Nombre"].text();
    if (nombre.trimmed().toUpper() != MODULE11::DrActual.trimmed().toUpper())
        return true;
    MODULE11::MuestraError(u"Error, no puede eliminar éste registro!!"_s);
    return false;
}

/// The hours go with the professional; the appointments given stay in the book.
void panProfesionales::deleteRow()
{
    MODULE11::BaseDatos.execute(u"Delete * from DisTurnos where idProfesional = "_s +
                                Data1.recordset()[u"idProfesional"].text());
    Tabla::deleteRow();
}

void panProfesionales::buscar()
{
    Data1.change([](dao::Recordset &profesionales) { MODULE11::BuscaEnLista(profesionales, u"Nombre"_s); });
}

void panProfesionales::imprimir()
{
    Data1.updateRecord();
    informes::muestra(u"profesionales.rpt"_s, {});
}

#include "moc_panProfesionales.cpp"
