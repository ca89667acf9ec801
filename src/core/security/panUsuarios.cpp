#include "core/security/panUsuarios.h"

#include "core/reports/informes.h"
#include "core/security/niveles.h"
#include "core/security/panNueUsuario.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/reports/selection.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int paginaEventos = 1;

} // namespace

panUsuarios::panUsuarios()
    : Tabla(u"panUsuarios"_s, u"Usuarios del sistema"_s,
            {{u"Nombre"_s, u"Nombre"_s, {}, 240},
             {u"Clave"_s, u"Clave"_s, {}, 180, true},
             {u"Nivel"_s, u"Nivel"_s, {}, 80},
             {u"Tipo"_s, u"Tipo"_s, {}, 80}})
{
    setSource(u"Select * from usuarios"_s);
    DBGrid2.setSource(Data2, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 110},
                              {u"Hora"_s, u"Hora"_s, {}, 70},
                              {u"Proceso"_s, u"Proceso"_s, {}, 250},
                              {u"Suceso"_s, u"Suceso"_s, {}, 300}});
    Data1.bind(Text1, u"Nombre"_s);
    Data1.bind(Text2, u"Nivel"_s);
    Data1.bind(Text3, u"Clave"_s);
    Text3.setSecret();
    Text2.setMaximumWidth(70);
    Combo2.addItems(MODULE11::tiposDeUsuario);
    setContents(this, Column{
                          Expanding(Tabs(SSTab1, {{u"&Usuarios"_s, fichaUsuarios()},
                                                  {u"E&ventos del usuario"_s, fichaEventos()}})),
                          Row{Stretch(), closes(u"Command3"_s, u"&Cerrar"_s)},
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
        Row{command(u"Command1"_s, u"&Nuevo..."_s, u"nuevo"_s, [this] { agregar(); },
                    {.gate = u"AgregarUsuarios"_s}),
            deletes(u"Command2"_s, u"&Eliminar"_s,
                    {.gate = u"BorrarUsuarios"_s,
                     .question = u"Está seguro de retirar este usuario del sistema"_s}),
            Stretch(), Command4},
    };
}

Item panUsuarios::fichaEventos()
{
    return Column{
        Label1,
        Expanding(DBGrid2),
        Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}},
            command(u"Command5"_s, u"&Filtrar"_s, u"buscar"_s, [this] { filtrar(); }), Stretch(), Check1,
            command(u"Command7"_s, u"&Imprimir..."_s, u"imprimir"_s, [this] { imprimir(); })},
    };
}

void panUsuarios::conectar()
{
    connect(&Text3, &TextBox::secretShown, &DBGrid1, &DBGrid::setSecretsShown);
    connect(&SSTab1, &QTabWidget::currentChanged, this, [this] { mostrarEventos(); });
    connect(&Text2, &QLineEdit::textChanged, this, &panUsuarios::mostrarNivel);
    connect(&Combo1, &QComboBox::activated, this,
            [this] { escribir(u"Nivel"_s, MODULE11::nivelDeEntrada(Combo1.value())); });
    connect(&Combo2, &QComboBox::activated, this, [this] { escribir(u"Tipo"_s, Combo2.value().left(1)); });
}

void panUsuarios::load()
{
    Combo1.addItems(MODULE11::entradasDeNivel());
    Tabla::load();
}

void panUsuarios::rowShown()
{
    const bool hay = Data1.hasRow();
    bloquear(!hay || Data1.recordset()[u"Nombre"].text() == u"supervisor");
    Text3.setEnabled(hay);
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

QString panUsuarios::usuarioEnVista()
{
    return Data1.hasRow() ? Data1.recordset()[u"Nombre"].text() : QString();
}

/// The log is long: it is read only while it is in sight.
void panUsuarios::mostrarEventos(const QString &condicion)
{
    if (SSTab1.currentIndex() != paginaEventos)
        return;
    const QString nombre = usuarioEnVista();
    Label1.setCaption(u"Eventos de "_s + nombre + u" :"_s);
    Data2.setRecordSource(u"Select * from eventos where usuario = "_s + dao::quoted(nombre) + condicion +
                          u" order by fecha, hora"_s);
    Data2.refresh();
}

void panUsuarios::escribir(const QString &campo, const basic::Value &valor)
{
    if (Data1.hasRow())
        Data1.set(campo, valor);
}

void panUsuarios::agregar()
{
    panNueUsuario nuevo;
    nuevo.showModal();
    if (nuevo.tag() != u"SI")
        return;
    addRow([&](dao::Recordset &usuarios) {
        usuarios[u"Nombre"] = nuevo.nombre();
        usuarios[u"Nivel"] = nuevo.nivel();
        usuarios[u"Clave"] = nuevo.clave();
        usuarios[u"Tipo"] = nuevo.tipo();
    });
}

/// A suspended level keeps the original one in its value.
void panUsuarios::suspender()
{
    const qint64 paso = Command4.text().startsWith(u"Sus") ? MODULE11::suspendido : -MODULE11::suspendido;
    Data1.updateRecord();
    escribir(u"Nivel"_s, Data1.recordset()[u"Nivel"].integer() + paso);
}

void panUsuarios::filtrar()
{
    mostrarEventos(u" and "_s + dao::period(u"Fecha"_s, dt1.value(), dt2.value()));
}

/// Of the account in sight, or of all.
void panUsuarios::imprimir()
{
    QString seleccion = reports::period(u"Eventos.Fecha"_s, dt1.value(), dt2.value());
    if (!Check1.isChecked())
        seleccion.prepend(u"{Eventos.Usuario} = %1 and "_s.arg(reports::literal(usuarioEnVista())));
    informes::muestra(u"eventos.rpt"_s, seleccion);
}

#include "moc_panUsuarios.cpp"
