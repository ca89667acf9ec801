#include "core/windows/Vademecum.h"

#include "core/maintenance/trabajo.h"
#include "core/security/niveles.h"
#include "core/session/ending.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/session/version.h"
#include "core/windows/barraDeMenu.h"
#include "core/windows/despacho.h"
#include "core/windows/panInicial.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "platform/forms/twips.h"
#include "platform/settings/settings.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

constexpr double anchoAbierto = 2415; // twips
constexpr double anchoCerrado = 105;

} // namespace

Vademecum::Vademecum()
{
    setObjectName(u"Vademecum"_s);
    setWindowIcon(QIcon(u":/logo.svg"_s));
    ponerCaption();
    menu::build(*menuBar());

    auto *centro = new QWidget;
    auto *cuerpo = new QVBoxLayout(centro);
    cuerpo->setContentsMargins(0, 0, 0, 0);
    cuerpo->setSpacing(0);
    cuerpo->addWidget(construirBarra());
    cuerpo->addWidget(&franja_);
    auto *fila = new QHBoxLayout;
    fila->setSpacing(0);
    fila->addWidget(construirPanel());
    fila->addWidget(&area_, 1);
    cuerpo->addLayout(fila, 1);
    setCentralWidget(centro);

    area_.setObjectName(u"area"_s);
    area_.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_.setBackground(QColor(0xe9, 0xee, 0xf1));
    forms::setChildArea(&area_);

    StatusBar1.setObjectName(u"StatusBar1"_s);
    setStatusBar(&StatusBar1);
    resize(1280, 720);

    Timer1.setParent(this);
    connect(&Timer1, &QTimer::timeout, this, &Vademecum::refrescarPacientesDeHoy);
    Timer1.start();
}

Vademecum::~Vademecum()
{
    forms::setChildArea(nullptr);
}

void Vademecum::ponerCaption()
{
    setWindowTitle(u"Sanirell! %1 - %2"_s.arg(core::version::conEspacios(), MODULE11::DrActual));
    mostrarEstado();
}

QWidget *Vademecum::construirBarra()
{
    auto *barra = new QFrame;
    barra->setObjectName(u"barra"_s);
    auto *fila = new QHBoxLayout(barra);
    fila->setContentsMargins(8, 4, 8, 4);
    fila->setSpacing(2);
    int indice = 0;
    for (const menu::Button &boton : menu::toolbar()) {
        const menu::Entry entry = menu::asEntry(boton);
        forms::ToolbarButton &control =
            Command1.add(indice++, QString::fromUtf8(boton.caption), QString::fromUtf8(boton.icon));
        control.setEnabled(menu::available(entry));
        connect(&control, &QToolButton::clicked, this, [entry] { menu::choose(entry); });
        fila->addWidget(&control);
    }
    fila->addStretch(1);
    return barra;
}

QWidget *Vademecum::construirPanel()
{
    panel_.setObjectName(u"panelPacientes"_s);
    panel_.setFixedWidth(static_cast<int>(forms::toPixels(anchoAbierto)));
    Command2.setObjectName(u"Command2"_s);
    Command2.setAutoRaise(true);
    Command2.setFixedWidth(static_cast<int>(forms::toPixels(anchoCerrado)));
    Command2.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    Command2.setToolTip(u"Mostrar u ocultar los pacientes para hoy"_s);
    connect(&Command2, &QToolButton::clicked, this, &Vademecum::plegarPanel);

    listaPacientes_ = new QWidget;
    auto *lista = new QVBoxLayout(listaPacientes_);
    lista->setAlignment(Qt::AlignTop);
    forms::Label &primera = lblPac.add(0, u"Nombre del paciente"_s);
    lista->addWidget(&primera);
    primera.hide();

    auto *desliza = new QScrollArea;
    desliza->setWidgetResizable(true);
    desliza->setFrameShape(QFrame::NoFrame);
    desliza->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    desliza->setWidget(listaPacientes_);

    auto *titulo = new QLabel(u"Pacientes para Hoy"_s);
    titulo->setObjectName(u"tituloPacientes"_s);
    auto *logo = new QLabel;
    logo->setPixmap(QIcon(u":/logo.svg"_s).pixmap(64, 64));
    logo->setAlignment(Qt::AlignHCenter);

    auto *contenido = new QVBoxLayout;
    contenido->setContentsMargins(10, 10, 4, 10);
    contenido->addWidget(titulo);
    contenido->addWidget(desliza, 1);
    contenido->addWidget(logo);
    auto *fila = new QHBoxLayout(&panel_);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(0);
    fila->addLayout(contenido, 1);
    fila->addWidget(&Command2);
    return &panel_;
}

void Vademecum::plegarPanel()
{
    const int cerrado = static_cast<int>(forms::toPixels(anchoCerrado));
    const bool abrir = panel_.width() == cerrado;
    panel_.setFixedWidth(abrir ? static_cast<int>(forms::toPixels(anchoAbierto)) : cerrado);
}

void Vademecum::mostrarEstado()
{
    StatusBar1.showMessage(u"Usuario: %1     Profesional: %2     %3"_s.arg(
        MODULE11::UsuarioActual, MODULE11::DrActual, basic::programFile(u"BASE.MDB"_s)));
}

void Vademecum::refrescarPacientesDeHoy()
{
    if (mantenimiento::EnCurso::hay())
        return;
    try {
        actualizarPacientesDeHoy();
        mostrarEstado();
    } catch (const basic::Error &error) {
        // Without the practice's file this first unguarded query is where the program ends.
        if (MODULE11::BaseDatos.isOpen()) {
            StatusBar1.showMessage(error.description());
            return;
        }
        Timer1.stop();
        forms::msgBox(error.description(), forms::Icon::Critical, u"Error"_s);
        MODULE11::terminar();
    }
}

void Vademecum::actualizarPacientesDeHoy()
{
    for (int i = lblPac.size() - 1; i > 0; --i)
        lblPac.remove(i);
    lblPac(0).hide();

    dao::Recordset turnos = MODULE11::BaseDatos.openRecordset(
        u"SELECT * FROM turnos WHERE Fecha = %1 AND Dr = %2 and idPaciente <> 0"_s.arg(
            dao::cdate(basic::today()), dao::quoted(MODULE11::DrActual)));
    auto *lista = qobject_cast<QVBoxLayout *>(listaPacientes_->layout());
    lista->setSpacing(static_cast<int>(0.6 * lblPac(0).sizeHint().height()));
    for (int i = 0; !turnos.eof(); turnos.moveNext(), ++i) {
        if (i > 0)
            lista->addWidget(&lblPac.add(i));
        forms::Label &nombre = lblPac(i);
        nombre.setCaption(turnos[u"Paciente"].text());
        nombre.setWordWrap(true);
        nombre.setToolTip(nombre.caption());
        nombre.setCursor(Qt::PointingHandCursor);
        forms::setTag(&nombre, turnos[u"idPaciente"].text());
        nombre.disconnect(this);
        connect(&nombre, &forms::Label::hovered, this, [this, i] {
            for (auto &[indice, otra] : lblPac) {
                QFont letra = otra->font();
                letra.setUnderline(indice == i);
                otra->setFont(letra);
            }
        });
        connect(&nombre, &forms::Label::clicked, this, [&nombre] {
            if (!MODULE11::VerificaNivel(u"IngresarAPacientes"_s))
                return;
            screens::showChild(screens::oneOf("panEstadPaciente", "panVisitas"), forms::tag(&nombre));
        });
        nombre.show();
    }
}

void Vademecum::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (activada_)
        return;
    activada_ = true;
    QMetaObject::invokeMethod(this, &Vademecum::primeraActivacion, Qt::QueuedConnection);
}

void Vademecum::primeraActivacion()
{
    mostrarEstado();
    avisarDeLaBase();
    if (settings::getSetting(u"Configuracion"_s, u"Mostrar Asistente al empezar"_s).isEmpty() &&
        MostrarAsistente) {
        screens::showModal("asistente");
        MostrarAsistente = false;
    }
    if (settings::getSetting(u"Configuracion"_s, u"Pantalla Inicial"_s) != u"NO" && MostrarInicial) {
        MostrarInicial = false;
        mostrarPantallaInicial();
    }
}

void Vademecum::mostrarPantallaInicial()
{
    panInicial inicio;
    inicio.showModal();
    const QString eleccion = inicio.tag();
    if (eleccion == u"NUEVO" && MODULE11::VerificaNivel(u"AgregarPacientes"_s))
        screens::run("NuevaFicha");
    else if (eleccion == u"ABRIR" && MODULE11::VerificaNivel(u"IngresarAPacientes"_s))
        screens::run("AbreFicha");
    else if (eleccion == u"TURNOS" && MODULE11::VerificaNivel(u"IngresarATurnos"_s))
        screens::showSingle("panTurnos");
    else if (eleccion == u"AYUDAS")
        menu::choose({0, "", "", menu::Kind::HelpKey});
    if (!inicio.mostrarCadaVez())
        settings::saveSetting(u"Configuracion"_s, u"Pantalla Inicial"_s, u"NO"_s);
}

/// What the toolkit tells of a menu item under the pointer would take the place of the user and the file.
bool Vademecum::event(QEvent *event)
{
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void Vademecum::closeEvent(QCloseEvent *event)
{
    if (MODULE11::terminado() || menu::exitDialogue())
        event->accept();
    else
        event->ignore();
}

#include "moc_Vademecum.cpp"
