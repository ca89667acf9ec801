#include "core/security/panUsuarios.h"

#include "core/security/niveles.h"
#include "core/security/panNueUsuario.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int paginaEventos = 1;

} // namespace

panUsuarios::panUsuarios() : Form(u"panUsuarios"_s)
{
    setWindowTitle(u"Usuarios del sistema"_s);
    DBGrid1.setSource(Data1, {{u"Nombre"_s, u"Nombre"_s, {}, 240},
                              {u"Clave"_s, u"Clave"_s, {}, 180, true},
                              {u"Nivel"_s, u"Nivel"_s, {}, 80},
                              {u"Tipo"_s, u"Tipo"_s, {}, 80}});
    DBGrid2.setSource(Data2, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 110},
                              {u"Hora"_s, u"Hora"_s, {}, 70},
                              {u"Proceso"_s, u"Proceso"_s, {}, 250},
                              {u"Suceso"_s, u"Suceso"_s, {}, 300}});
    Data1.bind(Text1, u"Nombre"_s);
    Data1.bind(Text2, u"Nivel"_s);
    Data1.bind(Text3, u"Clave"_s);
    Text3.setSecret();
    connect(&Text3, &TextBox::secretShown, &DBGrid1, &DBGrid::setSecretsShown);
    Text2.setMaximumWidth(70);
    Combo2.addItems(MODULE11::tiposDeUsuario);
    // The printed list waits for the report service.
    Check1.setEnabled(false);
    Command7.setEnabled(false);
    setContents(this, Column{
                          Expanding(Tabs(SSTab1, {{u"&Usuarios"_s, fichaUsuarios()},
                                                  {u"E&ventos del usuario"_s, fichaEventos()}})),
                          Row{Stretch(), Command3},
                      });
    resize(820, 560);
    conectar();
}

Item panUsuarios::fichaUsuarios()
{
    return Column{
        Expanding(DBGrid1),
        Group(u"Usuario seleccionado"_s,
              Row{Expanding(Fields{{u"Nom&bre :"_s, Text1}, {u"C&lave :"_s, Text3}}),
                  Expanding(Fields{{u"N&ivel :"_s, Row{Text2, Expanding(Combo1)}}, {u"Ti&po :"_s, Combo2}})}),
        Row{Command1, Command2, Stretch(), Command4},
    };
}

Item panUsuarios::fichaEventos()
{
    return Column{
        Label1,
        Expanding(DBGrid2),
        Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Command5, Stretch(), Check1,
            Command7},
    };
}

void panUsuarios::conectar()
{
    connect(&Data1, &Data::reposition, this, &panUsuarios::mostrarFila);
    connect(&SSTab1, &QTabWidget::currentChanged, this, [this] { mostrarEventos(); });
    connect(&Text2, &QLineEdit::textChanged, this, &panUsuarios::mostrarNivel);
    connect(&Combo1, &QComboBox::activated, this,
            [this] { escribir(u"Nivel"_s, MODULE11::nivelDeEntrada(Combo1.value())); });
    connect(&Combo2, &QComboBox::activated, this, [this] { escribir(u"Tipo"_s, Combo2.value().left(1)); });
    connect(&Command1, &QPushButton::clicked, this, &panUsuarios::command1Click);
    connect(&Command2, &QPushButton::clicked, this, &panUsuarios::command2Click);
    connect(&Command3, &QPushButton::clicked, this, &panUsuarios::unload);
    connect(&Command4, &QPushButton::clicked, this, &panUsuarios::command4Click);
    connect(&Command5, &QPushButton::clicked, this, &panUsuarios::command5Click);
}

void panUsuarios::load()
{
    Combo1.addItems(MODULE11::entradasDeNivel());
    Data1.setRecordSource(u"Select * from usuarios"_s);
    Data1.refresh();
}

bool panUsuarios::queryUnload()
{
    Data1.updateRecord();
    return true;
}

void panUsuarios::mostrarFila()
{
    const bool hay = Data1.hasRow();
    bloquear(!hay || Data1.recordset()[u"Nombre"].text() == u"supervisor");
    Text3.setEnabled(hay);
    Command2.setEnabled(hay);
    Command4.setEnabled(hay);
    Combo2.setValue(hay ? MODULE11::tipoDeLetra(Data1.recordset()[u"Tipo"].text()) : QString());
    mostrarNivel();
    const bool fuera = hay && Data1.recordset()[u"Nivel"].integer() >= MODULE11::suspendido;
    Command4.setText(fuera ? u"Restaurar el acceso a este usuario"_s
                           : u"Suspender el acceso a este usuario"_s);
    mostrarEventos();
}

void panUsuarios::bloquear(bool supervisor)
{
    for (QWidget *control : std::initializer_list<QWidget *>{&Text1, &Text2, &Combo1, &Combo2})
        control->setEnabled(!supervisor);
}

/// The combo shows the level typed; none when there is no such level.
void panUsuarios::mostrarNivel()
{
    Combo1.setCurrentIndex(-1);
    const auto nivel = basic::toNumber(Text2.text());
    if (!nivel)
        return;
    dao::Recordset niveles = MODULE11::BaseDatos.openRecordset(u"Niveles"_s);
    niveles.setIndex(u"nivel");
    niveles.seek(u"=", *nivel);
    if (!niveles.noMatch())
        Combo1.setValue(MODULE11::entradaDeNivel(niveles));
}

/// The log is long: it is read only while it is in sight.
void panUsuarios::mostrarEventos(const QString &condicion)
{
    if (SSTab1.currentIndex() != paginaEventos)
        return;
    const QString nombre = Data1.hasRow() ? Data1.recordset()[u"Nombre"].text() : QString();
    Label1.setCaption(u"Eventos de "_s + nombre + u" :"_s);
    Data2.setRecordSource(u"Select * from eventos where usuario = "_s + dao::quoted(nombre) + condicion +
                          u" order by fecha, hora"_s);
    Data2.refresh();
}

void panUsuarios::escribir(const QString &campo, const basic::Value &valor)
{
    if (!Data1.hasRow())
        return;
    Data1.change([&](dao::Recordset &usuarios) {
        usuarios.edit();
        usuarios[campo] = valor;
        usuarios.update();
    });
}

void panUsuarios::command1Click()
{
    if (!MODULE11::VerificaNivel(u"AgregarUsuarios"_s))
        return;
    panNueUsuario nuevo;
    nuevo.showModal();
    if (nuevo.tag() != u"SI")
        return;
    Data1.change([&](dao::Recordset &usuarios) {
        usuarios.addNew();
        usuarios[u"Nombre"] = nuevo.nombre();
        usuarios[u"Nivel"] = nuevo.nivel();
        usuarios[u"Clave"] = nuevo.clave();
        usuarios[u"Tipo"] = nuevo.tipo();
        usuarios.update();
        usuarios.setBookmark(usuarios.lastModified());
    });
}

void panUsuarios::command2Click()
{
    if (!MODULE11::VerificaNivel(u"BorrarUsuarios"_s) ||
        !MODULE11::PreguntaSiBorra(u"Está seguro de retirar este usuario del sistema"_s))
        return;
    Data1.deleteRow();
}

/// A suspended level keeps the original one in its value.
void panUsuarios::command4Click()
{
    const qint64 paso = Command4.text().startsWith(u"Sus") ? MODULE11::suspendido : -MODULE11::suspendido;
    Data1.updateRecord();
    escribir(u"Nivel"_s, Data1.recordset()[u"Nivel"].integer() + paso);
}

void panUsuarios::command5Click()
{
    mostrarEventos(u" and "_s + dao::period(u"Fecha"_s, dt1.value(), dt2.value()));
}

#include "moc_panUsuarios.cpp"
