#include "practice/appointments/panTurnos.h"

#include "core/reports/exportaHtml.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/login.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/settings/settings.h"
#include "practice/appointments/panCambiaEstadoTurno.h"
#include "practice/appointments/panNueTurno.h"
#include "practice/appointments/turnos.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString porUsuario = u"Por Usuario"_s;
constexpr int anchoDelListado = 800;
constexpr QStringView horarios[] = {u"desde1", u"hasta1", u"desde2", u"hasta2"};

/// The first entry of each filter stands for all.
bool todos(const ComboBox &combo)
{
    return combo.currentIndex() <= 0;
}

QString filtro(const ComboBox &combo, const QString &campo, const QString &valor)
{
    return todos(combo) ? u" true "_s : u" %1 = %2 "_s.arg(campo, dao::quoted(valor));
}

QString conMiles(qint64 cantidad)
{
    return basic::format(cantidad, u"##,##0");
}

/// How many rows the query has.
qint64 cuenta(const QString &sql)
{
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(sql);
    return filas.rowCount();
}

} // namespace

panTurnos::panTurnos() : Form(u"panTurnos"_s)
{
    setWindowTitle(u"Pantalla de Turnos o Citas"_s);
    for (int i = 0; i < 4; ++i)
        Label3.add(i, u"no"_s);
    for (int i = 0; i < 2; ++i) {
        TextBox &cantidad = Text1.add(i);
        cantidad.setReadOnly(true);
        cantidad.setFocusPolicy(Qt::NoFocus);
        cantidad.setAlignment(Qt::AlignRight);
        cantidad.setFixedWidth(70);
    }
    DBGrid2.setSource(Data1, {{u"Hora"_s, u"Hora"_s, {}, 56},
                              {u"Dr."_s, u"Dr"_s, {}, 115},
                              {u"Paciente"_s, u"Paciente"_s, {}, 170},
                              {u"Motivo"_s, u"Motivo"_s, {}, 95},
                              {u"Telefono"_s, u"Telefono"_s, {}, 95},
                              {u"Mutual"_s, u"Mutual"_s, {}, 105},
                              {u"Estado"_s, u"Estado"_s, {}, 75},
                              {u"Coseguro"_s, u"Coseguro"_s, {}, 70}});
    DBGrid2.setRowLook(u"Paciente"_s, turnos::aspecto);
    disponer();
    resize(1160, 620);
}

void panTurnos::disponer()
{
    QFont titulo = panelFecha.font();
    titulo.setPointSizeF(titulo.pointSizeF() * 1.25);
    titulo.setBold(true);
    panelFecha.setFont(titulo);
    calendar1.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    const Item filtros =
        Group(u"Ver"_s,
              Fields{{u"Pro&fesional :"_s, Combo2}, {u"Obra socia&l :"_s, Combo1}, {u"Es&tado :"_s, Combo3}});
    const Item atencion = Group(u"Horarios :"_s, Row{Label3(0), new QLabel(u"a"_s), Label3(1), Stretch(),
                                                     Label3(2), new QLabel(u"a"_s), Label3(3)});
    auto *lado = new QWidget;
    lado->setFixedWidth(290);
    setContents(lado, Column{
                          calendar1,
                          filtros,
                          atencion,
                          Fields{{u"Turnos dados :"_s, Text1(0)}, {u"Atenciones realizadas :"_s, Text1(1)}},
                          Stretch(),
                          Check1,
                      });
    setContents(this, Column{
                          Expanding(Row{lado, Expanding(Column{panelFecha, Expanding(DBGrid2)})}),
                          Row{Command2, Command3, Command6, Command5, Command1, Stretch(), Command4},
                      });
}

void panTurnos::load()
{
    services::agregarConClave(Combo1, u"Select * from [Obra Social] order by Descripcion"_s, u"Descripcion",
                              u"idObraSocial");
    services::agregarConClave(Combo2, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    services::agregarConClave(Combo3, u"Select * from EstadosTurnos order by Estado"_s, u"Estado",
                              u"idEstado");
    for (ComboBox *combo : {&Combo1, &Combo2, &Combo3})
        combo->setCurrentIndex(0);
    elegirInicio();
    connect(&Data1, &Data::reposition, this, &panTurnos::mostrarCuentas);
    refrescar();
    DBGrid2.setFocus();

    connect(&calendar1, &QCalendarWidget::selectionChanged, this, &panTurnos::refrescar);
    for (ComboBox *combo : {&Combo1, &Combo2, &Combo3})
        connect(combo, &QComboBox::currentIndexChanged, this, &panTurnos::refrescar);
    connect(&Check1, &QCheckBox::toggled, this, [](bool preguntar) {
        settings::saveSetting(u"Miscelaneas"_s, u"Modelo de uso Turnos"_s,
                              preguntar ? porUsuario : QString());
    });
    connect(&DBGrid2, &DBGrid::accepted, this, &panTurnos::editar);
}

/// A doctor sees the own book only. In the mode by user, the others begin with what they gave at the login.
void panTurnos::elegirInicio()
{
    const bool modoPorUsuario =
        settings::getSetting(u"Miscelaneas"_s, u"Modelo de uso Turnos"_s) == porUsuario;
    Check1.setChecked(modoPorUsuario);
    const MODULE11::TurnosPorUsuario &pedido = MODULE11::turnosPorUsuario;
    if (modoPorUsuario && pedido.fecha != basic::Date())
        calendar1.setValue(pedido.fecha);
    Combo2.setValue(MODULE11::DrActual);
    if (MODULE11::TipoUsuario == u"M") {
        Combo2.setEnabled(false);
        return;
    }
    Combo2.setCurrentIndex(0);
    if (modoPorUsuario && Combo2.findText(pedido.profesional) > 0)
        Combo2.setValue(pedido.profesional);
}

void panTurnos::refrescar()
{
    const basic::Date fecha = calendar1.value();
    panelFecha.setCaption(MODULE11::FechaEnLetras(fecha) + u' ' + Combo2.value());
    Data1.setRecordSource(u"Select * from Turnos where fecha = %1 and %2 and %3 and %4 order by Hora"_s.arg(
        dao::cdate(fecha), filtro(Combo1, u"Mutual"_s, Combo1.value().trimmed()),
        filtro(Combo2, u"Dr"_s, Combo2.value()), filtro(Combo3, u"Estado"_s, Combo3.value().trimmed())));
    Data1.refresh();
    mostrarHorarios();
}

void panTurnos::mostrarHorarios()
{
    for (auto &[indice, hora] : Label3)
        hora->setCaption(u"no"_s);
    if (Combo2.currentIndex() <= 0)
        return;
    dao::Recordset dia = MODULE11::BaseDatos.openRecordset(
        u"Select * from DisTurnos where idProfesional = %1 and fecha = %2"_s.arg(
            Combo2.currentData().toString(), dao::cdate(calendar1.value())));
    if (dia.eof())
        return;
    for (auto &[indice, hora] : Label3)
        hora->setCaption(dia[horarios[indice]].text());
}

/// Free places count as given ones.
void panTurnos::mostrarCuentas()
{
    const bool hay = enLugar();
    Command3.setEnabled(hay);
    Command5.setEnabled(hay);
    Command6.setEnabled(hay);
    Command1.setEnabled(hay && screens::has("panInfTurnos"));
    if (!hay) {
        Text1(0).setText(u"0"_s);
        Text1(1).setText(u"0"_s);
        return;
    }
    Text1(0).setText(conMiles(Data1.recordset().rowCount()));
    Text1(1).setText(
        conMiles(cuenta(u"select * from consulta where fecha = "_s + dao::cdate(calendar1.value()))));
}

bool panTurnos::enLugar() const
{
    return Data1.hasRow();
}

qint64 panTurnos::turnoActual()
{
    return Data1.recordset()[u"idTurno"].integer();
}

void panTurnos::volverA(qint64 idTurno)
{
    Data1.refresh();
    Data1.find(u"idTurno = "_s + QString::number(idTurno));
}

void panTurnos::prepararDialogo(panNueTurno &dialogo)
{
    dao::Recordset &lugar = Data1.recordset();
    dialogo.proponer(Combo1.value(), Combo2.value());
    dialogo.fijarLugar(lugar[u"Fecha"].date(), lugar[u"Hora"].text());
}

void panTurnos::otorgar()
{
    if (!enLugar()) {
        msgBox(u"Seleccione un horario para agregar un turno."_s, Icon::Exclamation, u"Atención"_s);
        return;
    }
    if (!turnos::libre(Data1.recordset())) {
        msgBox(u"En el horario seleccionado ya existe un turno dado."_s, Icon::Exclamation, u"Atención"_s);
        return;
    }
    const qint64 idTurno = turnoActual();
    panNueTurno dialogo;
    prepararDialogo(dialogo);
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return;
    turnos::ocupar(Data1.recordset(), dialogo.reserva());
    volverA(idTurno);
}

void panTurnos::editar()
{
    const qint64 idTurno = turnoActual();
    panNueTurno dialogo;
    prepararDialogo(dialogo);
    dialogo.setTurno(idTurno);
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return;
    dao::Recordset turno = MODULE11::BaseDatos.openRecordset(u"Select * from turnos WHERE idTurno = "_s +
                                                             QString::number(idTurno));
    turnos::ocupar(turno, dialogo.reserva());
    volverA(idTurno);
}

void panTurnos::borrar()
{
    if (!enLugar())
        return;
    const qint64 idTurno = turnoActual();
    turnos::liberar(Data1.recordset());
    volverA(idTurno);
}

void panTurnos::exportar()
{
    informes::exportaHtml(Data1.recordSource(), u"TURNOS"_s, anchoDelListado);
}

void panTurnos::cambiarEstado()
{
    if (!enLugar())
        return;
    const qint64 idTurno = turnoActual();
    panCambiaEstadoTurno dialogo;
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return;
    turnos::cambiarEstado(Data1.recordset(), dialogo.estado());
    volverA(idTurno);
}

#include "moc_panTurnos.cpp"
