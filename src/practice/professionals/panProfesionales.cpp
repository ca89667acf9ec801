#include "practice/professionals/panProfesionales.h"

#include "core/security/niveles.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "practice/professionals/listado.h"
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

panProfesionales::panProfesionales() : Form(u"panProfesionales"_s)
{
    setWindowTitle(u"Tabla de Profesionales / Usuarios"_s);
    DBGrid1.setSource(Data1,
                      {{u"Nombre"_s, u"Nombre"_s, {}, 200}, {u"Especialidad"_s, u"Especialidad"_s, {}, 110}});
    DBGrid1.setMinimumWidth(330);
    int indice = 0;
    for (const Campo &campo : campos)
        Data1.bind(Text1.add(indice++, campo.largo), campo.campo.toString());
    Combo1.lineEdit()->setMaxLength(60);
    Data1.bind(Combo1, u"Especialidad"_s);
    Data1.bind(Text3, u"Observaciones"_s);
    Data1.bind(Text2, u"interturnos"_s);
    Text2.setMaximumWidth(60);
    setContents(this, Column{
                          Expanding(Row{DBGrid1,
                                        Expanding(Tabs(SSTab1, {{u"&Datos"_s, fichaDatos()},
                                                                {u"&Política de permisos"_s, fichaPermisos()},
                                                                {u"&Horarios"_s, fichaHorarios()}}))}),
                          Row{Command1, Command2, Command3, Command4, Command5, Stretch(), Command9},
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
    connect(&Data1, &Data::reposition, this, &panProfesionales::mostrarFila);
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
    connect(&Command1, &QPushButton::clicked, this, &panProfesionales::nuevoClick);
    connect(&Command2, &QPushButton::clicked, this, &panProfesionales::eliminarClick);
    connect(&Command3, &QPushButton::clicked, this, [this] { Data1.updateRecord(); });
    connect(&Command4, &QPushButton::clicked, this, [this] {
        Data1.change(
            [](dao::Recordset &profesionales) { MODULE11::BuscaEnLista(profesionales, u"Nombre"_s); });
    });
    connect(&Command5, &QPushButton::clicked, this, &panProfesionales::imprimirClick);
    connect(&Command9, &QPushButton::clicked, this, &panProfesionales::unload);
}

void panProfesionales::load()
{
    practice::llenaUsuariosMedicos(Combo2);
    Data1.setRecordSource(u"Select * from Profesionales"_s);
    Data1.refresh();
}

bool panProfesionales::queryUnload()
{
    Data1.updateRecord();
    return true;
}

void panProfesionales::mostrarFila()
{
    const bool hay = Data1.hasRow();
    SSTab1.setEnabled(hay);
    for (CommandButton *boton : {&Command2, &Command3, &Command4, &Command5})
        boton->setEnabled(hay);
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
    Data1.change([&](dao::Recordset &profesionales) {
        profesionales.edit();
        profesionales[campo] = valor;
        profesionales.update();
    });
}

void panProfesionales::pasoDeInterturnos(int paso)
{
    const auto minutos = basic::toNumber(Text2.text());
    if (!minutos)
        Text2.setText(interturnosHabitual);
    else
        Text2.setText(QString::number(qMax(minutosPorPaso, qRound(*minutos) + paso * minutosPorPaso)));
}

void panProfesionales::nuevoClick()
{
    if (!MODULE11::VerificaNivel(u"AgregarProfesionales"_s))
        return;
    panNueProfesional nuevo;
    nuevo.showModal();
    if (nuevo.tag() != u"SI")
        return;
    Data1.change([&](dao::Recordset &profesionales) {
        profesionales.addNew();
        profesionales[u"Nombre"] = nuevo.nombre();
        profesionales[u"Especialidad"] = nuevo.especialidad();
        profesionales[u"Domicilio"] = nuevo.domicilio();
        profesionales[u"Localidad"] = nuevo.localidad();
        profesionales[u"Telefonos"] = nuevo.telefonos();
        profesionales[u"observaciones"] = nuevo.observaciones() + u'.';
        profesionales[u"tipopermiso"] = u"U"_s;
        profesionales[u"idUsuario"] = nuevo.idUsuario();
        profesionales.update();
        profesionales.setBookmark(profesionales.lastModified());
    });
}

/// The appointments given stay in the book.
void panProfesionales::eliminarClick()
{
    if (!MODULE11::VerificaNivel(u"BorrarProfesionales"_s))
        return;
    dao::Recordset &fila = Data1.recordset();
    if (fila[u"Nombre"].text().trimmed().toUpper() == MODULE11::DrActual.trimmed().toUpper()) {
        MODULE11::MuestraError(u"Error, no puede eliminar éste registro!!"_s);
        return;
    }
    if (!MODULE11::PreguntaSiBorra(u"Borra este profesional de la lista"_s))
        return;
    MODULE11::BaseDatos.execute(u"Delete * from DisTurnos where idProfesional = "_s +
                                fila[u"idProfesional"].text());
    Data1.deleteRow();
}

void panProfesionales::imprimirClick()
{
    Data1.updateRecord();
    practice::imprimeProfesionales();
}

#include "moc_panProfesionales.cpp"
