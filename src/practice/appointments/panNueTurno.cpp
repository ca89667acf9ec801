#include "practice/appointments/panNueTurno.h"

#include "core/security/permisos.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "practice/appointments/panDispTurnos.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString particular = u"<Particular>"_s;
const QString busquedaRapida = u"<Búsqueda rápida>"_s;

QString nombreComo(const QString &comienzo)
{
    return u"[Apellido y Nombres] LIKE "_s + dao::quoted(dao::typedPattern(comienzo, dao::Match::Beginning));
}

void error(const QString &texto)
{
    msgBox(texto, Icon::Critical, u"Error"_s);
}

/// The focus that a window gives on opening leaves the hint in sight, selected, until the first letter.
bool llegaLaPersona(const QFocusEvent &foco)
{
    switch (foco.reason()) {
    case Qt::OtherFocusReason:
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        return false;
    default:
        return true;
    }
}

} // namespace

panNueTurno::panNueTurno() : Form(u"panNueTurno"_s)
{
    setWindowTitle(u"Nuevo Turno a un paciente"_s);
    txtBusca.setText(busquedaRapida);
    Command1.setDefault(true);
    DBGrid1.setSource(Data1, {{u"Apellido y Nombres"_s, u"Apellido y Nombres"_s, {}, 250},
                              {u"Obra Social"_s, u"Obra Social"_s, {}, 150}});
    disponer();
    resize(1000, 600);

    txtBusca.installEventFilter(this);
    connect(&txtBusca, &QLineEdit::textEdited, this, &panNueTurno::buscar);
    connect(&Text1, &QLineEdit::textEdited, this, &panNueTurno::escribirNombre);
    connect(&Data1, &Data::reposition, this, &panNueTurno::mostrarPaciente);
    connect(&checkBajas, &QCheckBox::toggled, this, &panNueTurno::armarLista);
    connect(&Check1, &QCheckBox::toggled, this,
            [this](bool sano) { mMotivo.setText(sano ? u"Control Sano"_s : u"-"_s); });
    connect(&DBGrid1, &DBGrid::accepted, this, &panNueTurno::aceptar);
    connect(&Command1, &QPushButton::clicked, this, &panNueTurno::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panNueTurno::verElDia);
    connect(&Command4, &QPushButton::clicked, this, &panNueTurno::buscarPorNombre);
}

void panNueTurno::disponer()
{
    mHora.setFixedWidth(70);
    mObservaciones.setMinimumHeight(60);
    const Item paciente = Group(u"Paciente"_s, Fields{{u"&Nombre :"_s, Text1},
                                                      {Label7, Row{lblAnios, lblMeses, lblDias, Stretch()}},
                                                      {u"Obra &social :"_s, Combo1},
                                                      {u"Nº de af&iliado :"_s, Text2},
                                                      {u"&Teléfono :"_s, Text3},
                                                      {u"&E-mail :"_s, Text4}});
    const Item turno = Group(u"Turno"_s, Fields{{u"&Profesional :"_s, Combo2},
                                                {u"&Fecha :"_s, Row{mFecha, Command3, Stretch()}},
                                                {u"&Hora :"_s, Row{mHora, Stretch()}},
                                                {u"&Motivo :"_s, Row{mMotivo, Check1}},
                                                {u"Cose&guro :"_s, mCoseguro},
                                                {u"Obse&rvaciones :"_s, mObservaciones}});
    setContents(this, Column{
                          Label1,
                          Expanding(Row{Expanding(Column{Row{txtBusca, Command4}, DBGrid1, checkBajas}),
                                        Expanding(Column{paciente, turno})}),
                          Row{Stretch(), Command1, Command2},
                      });
}

void panNueTurno::proponer(const QString &cobertura, const QString &profesional)
{
    forms::setTag(&Combo1, cobertura);
    forms::setTag(&Combo2, profesional);
}

/// "Ver el día..." still shows the day, but takes no other hour from it.
void panNueTurno::fijarLugar(basic::Date fecha, const QString &hora)
{
    mFecha.setValue(fecha);
    mHora.setText(hora);
    for (QWidget *control : std::initializer_list<QWidget *>{&mFecha, &mHora})
        control->setEnabled(false);
}

void panNueTurno::load()
{
    Combo1.addItem(particular, 0);
    services::agregarConClave(Combo1, u"Select * from [Obra Social] order by Descripcion"_s, u"Descripcion",
                              u"idObraSocial");
    services::agregarConClave(Combo2, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    Combo1.setValue(forms::tag(&Combo1));
    Combo2.setValue(forms::tag(&Combo2));
}

void panNueTurno::activate()
{
    if (Data1.hasRecordset())
        return; // back from a dialogue of its own
    const auto filtro = MODULE11::FiltroDePacientes();
    if (!filtro) {
        answer(u"NO"_s);
        return;
    }
    permiso_ = numero_.isEmpty() ? *filtro : u" (%1 or Numero = %2) "_s.arg(*filtro, numero_);
    armarLista();
    if (!irAlPaciente()) {
        answer(u"NO"_s); // before somebody else's place is booked by mistake
        return;
    }
    if (idTurno_)
        mostrarTurno();
    if (txtBusca.isEnabled()) {
        txtBusca.setFocus();
        txtBusca.selectAll();
    } else {
        mMotivo.setFocus();
    }
}

void panNueTurno::armarLista()
{
    const QString bajas =
        checkBajas.isChecked() ? u"( date() < fechaBaja or fechaBaja = NULL )"_s : u" TRUE "_s;
    Data1.setRecordSource(
        u"Select * from pacientes where %1 AND %2 order by [apellido y nombres]"_s.arg(permiso_, bajas));
    Data1.refresh();
}

/// A patient whom the professional may not see is not in the list.
bool panNueTurno::irAlPaciente()
{
    if (numero_.isEmpty())
        return true;
    if (Data1.find(u"Numero = "_s + numero_))
        return true;
    error(u"No encontrado!!"_s);
    return false;
}

void panNueTurno::mostrarPaciente()
{
    if (!Data1.hasRow())
        return;
    txtBusca.setFound(true); // a row gone to is a choice, whatever was typed before
    dao::Recordset &paciente = Data1.recordset();
    idPaciente_ = paciente[u"Numero"].integer();
    Text1.setText(paciente[u"Apellido y Nombres"].text());
    elegirCobertura(paciente[u"Obra Social"].text());
    Text2.setText(paciente[u"Numero de Afiliado"].text());
    Text3.setText(paciente[u"Telefono"].text());
    Text4.setText(paciente[u"email"].text());
    mostrarEdad(paciente[u"Fecha de Nacimiento"]);
}

void panNueTurno::elegirCobertura(const QString &cobertura)
{
    Combo1.setValue(cobertura.isEmpty() ? particular : cobertura);
}

void panNueTurno::mostrarEdad(const basic::Value &nacimiento)
{
    edad_ = {};
    for (Label *dato : {&lblAnios, &lblMeses, &lblDias})
        dato->setCaption({});
    Label7.setToolTip({});
    if (nacimiento.isBlank())
        return;
    const QDate hoy = basic::today().date();
    const QDate fecha = nacimiento.date().date();
    edad_ = turnos::edad(fecha, hoy);
    lblAnios.setCaption(u"%1 años"_s.arg(edad_.anios));
    lblMeses.setCaption(u"%1 meses"_s.arg(edad_.meses));
    lblDias.setCaption(u"%1 días"_s.arg(edad_.dias));
    const auto dias = static_cast<double>(fecha.daysTo(hoy));
    Label7.setToolTip(u"Dias de Vida:%1 // Semanas de Vida:%2"_s.arg(basic::format(dias, u"###,##0"),
                                                                     basic::format(dias / 7, u"##,##0.0")));
}

void panNueTurno::mostrarTurno()
{
    dao::Recordset turno = MODULE11::BaseDatos.openRecordset(u"Select * from turnos WHERE idTurno = "_s +
                                                             QString::number(*idTurno_));
    if (turno.eof())
        return;
    fijarLugar(turno[u"Fecha"].date(), turno[u"Hora"].text());
    if (!turnos::libre(turno)) {
        mostrarTurnoDado(turno);
        return;
    }
    if (Combo2.currentIndex() < 0)
        Combo2.setValue(turno[u"Dr"].text());
}

/// A patient who is no longer in the register, or never was, stays on the place under the name it has there.
void panNueTurno::mostrarTurnoDado(dao::Recordset &turno)
{
    const QString nombre = turno[u"Paciente"].text();
    if (!Data1.find(u"[Apellido y Nombres] = "_s + dao::quoted(nombre))) {
        idPaciente_ = turno[u"idPaciente"].integer();
        mostrarEdad({});
    }
    Text1.setText(nombre);
    Combo2.setValue(turno[u"Dr"].text());
    elegirCobertura(turno[u"Mutual"].text());
    Text2.setText(turno[u"nroAfiliado"].text());
    Text3.setText(turno[u"Telefono"].text());
    Text4.setText(turno[u"email"].text());
    mMotivo.setText(turno[u"Motivo"].text());
    mCoseguro.setText(turno[u"Coseguro"].text());
    mObservaciones.setPlainText(turno[u"Observaciones"].text());
    for (QWidget *control : {static_cast<QWidget *>(&DBGrid1), static_cast<QWidget *>(&txtBusca),
                             static_cast<QWidget *>(&Command4), static_cast<QWidget *>(&Combo2)})
        control->setEnabled(false);
}

void panNueTurno::buscar(const QString &texto)
{
    if (texto.isEmpty())
        return;
    txtBusca.setFound(Data1.find(nombreComo(texto)));
    if (!txtBusca.found())
        olvidarPaciente();
}

/// Somebody who is not in the register: the row chosen before, with its telephone, plan and age, is
/// another's.
void panNueTurno::escribirNombre(const QString &nombre)
{
    if (idPaciente_ == 0)
        return;
    Data1.chooseNone();
    olvidarPaciente();
    Combo1.setValue(particular);
    Text1.setText(nombre);
    txtBusca.setFound(true);
}

/// Nobody is chosen: the patient met before must not be booked for the one looked for.
void panNueTurno::olvidarPaciente()
{
    idPaciente_ = 0;
    for (TextBox *dato : {&Text1, &Text2, &Text3, &Text4})
        dato->clear();
    Combo1.setCurrentIndex(-1);
    mostrarEdad({});
}

void panNueTurno::paso(int filas)
{
    DBGrid1.setCurrentRow(qBound(0, DBGrid1.currentRow() + filas, DBGrid1.model()->rowCount() - 1));
}

/// From the search field the arrows move in the list, so that a name typed is booked without the mouse. While
/// the letters meet nobody, Enter does not book the patient met before.
bool panNueTurno::eventFilter(QObject *receptor, QEvent *evento)
{
    if (evento->type() == QEvent::FocusIn && llegaLaPersona(*static_cast<QFocusEvent *>(evento)) &&
        txtBusca.text() == busquedaRapida)
        txtBusca.clear();
    if (evento->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(evento)->key()) {
        case Qt::Key_Down:
            paso(1);
            return true;
        case Qt::Key_Up:
            paso(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!txtBusca.found()) {
                txtBusca.selectAll();
                return true;
            }
            break;
        default:
            break;
        }
    }
    return Form::eventFilter(receptor, evento);
}

std::optional<qint64> panNueTurno::profesionalElegido()
{
    const auto id = turnos::idProfesional(Combo2.value());
    if (!id) {
        error(
            u"Debe seleccionar un profesional de la lista correctamente. Véase Archivos --> Tablas Varias --> Profesionales"_s);
        markWrong(Combo2, u"Un profesional de la lista"_s);
    }
    return id;
}

bool panNueTurno::atiendeEseDia(qint64 idProfesional)
{
    if (turnos::atiende(idProfesional, mFecha.value()))
        return true;
    msgBox(u"El/La Dr./a %1 no atiende el día %2"_s.arg(Combo2.value(), basic::dateText(mFecha.value())),
           Icon::Information, u"Lamentamos"_s);
    return false;
}

void panNueTurno::aceptar()
{
    if (Text1.text().trimmed().isEmpty()) {
        markWrong(Text1, u"Elija un paciente o escriba su nombre"_s);
        return;
    }
    const auto id = profesionalElegido();
    if (!id)
        return;
    const bool atiende = atiendeEseDia(*id);
    if (Combo1.currentIndex() < 0) {
        error(u"Error, seleccione una obra social válida!"_s);
        markWrong(Combo1, u"Una obra social de la lista, o <Particular>"_s);
        return;
    }
    if (atiende)
        answer(u"SI"_s);
}

void panNueTurno::verElDia()
{
    const auto id = profesionalElegido();
    if (!id || !atiendeEseDia(*id))
        return;
    panDispTurnos disponibles(mFecha.value(), *id);
    disponibles.showModal();
    if (disponibles.tag() == u"SI" && mHora.isEnabled())
        mHora.setText(disponibles.hora());
}

void panNueTurno::buscarPorNombre()
{
    const QString nombre = ports::pideNombreDePaciente();
    if (nombre.isEmpty())
        return;
    if (Data1.find(nombreComo(nombre)))
        return;
    error(u"No encontrado!!"_s);
    Data1.refresh(); // the first of the list, as it opened
}

turnos::Reserva panNueTurno::reserva()
{
    return {.paciente = Text1.text(),
            .telefono = Text3.text(),
            .email = Text4.text(),
            .nroAfiliado = Text2.text(),
            .idPaciente = idPaciente_,
            .mutual = Combo1.value(),
            .dr = Combo2.value(),
            .idMutual = Combo1.currentData().toLongLong(),
            .idProfesional = Combo2.currentData().toLongLong(),
            .motivo = mMotivo.text(),
            .coseguro = mCoseguro.text(),
            .observaciones = mObservaciones.toPlainText(),
            .edad = turnos::textoDeEdad(edad_)};
}

#include "moc_panNueTurno.cpp"
