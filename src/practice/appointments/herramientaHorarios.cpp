#include "practice/appointments/herramientaHorarios.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

#include <QCoreApplication>
#include <QLayout>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace forms;
using practice::HerramientaHorarios;

namespace
{

constexpr int verde = 65280; // not chosen
constexpr int rojo = 255;    // chosen

/// The days of the week as they stand on the screen, with their number.
struct Dia {
    int numero;
    const char *titulo;
};
constexpr Dia dias[] = {{2, "Lu"}, {3, "Ma"}, {4, "Mi"}, {5, "Ju"}, {6, "Vi"}, {7, "Sa"}, {1, "Do"}};

bool elegido(const CommandButton &boton)
{
    return toColourValue(backColor(boton)) == rojo;
}

/// A day chosen bears a tick besides its colour.
void marcar(CommandButton &boton, bool elegido)
{
    setBackColor(boton, fromColourValue(elegido ? rojo : verde));
    boton.setIcon(elegido ? QIcon(u":/icons/aceptar.svg"_s) : QIcon());
}

void error(const QString &texto)
{
    msgBox(texto, Icon::Critical, u"Error"_s);
}

} // namespace

HerramientaHorarios::HerramientaHorarios(forms::TextBox &intervalo) : intervalo_(intervalo)
{
    setObjectName(u"HerramientaHorarios"_s);
    ProgressBar1.setObjectName(u"ProgressBar1"_s);
    ProgressBar1.hide();
    for (const Dia &dia : dias) {
        CommandButton &boton = Command6.add(dia.numero, QString::fromUtf8(dia.titulo));
        boton.setFixedWidth(58);
        connect(&boton, &QPushButton::clicked, this, [this, numero = dia.numero] { alternarDia(numero); });
    }
    for (int i = 0; i < 4; ++i)
        tomarhora.add(i);
    diasEnVerde();
    disponer();
    connect(&Command7, &QPushButton::clicked, this, &HerramientaHorarios::aplicar);
    connect(&Command8, &QPushButton::clicked, this, &HerramientaHorarios::quitar);
}

void HerramientaHorarios::disponer()
{
    std::vector<Item> semana;
    for (const Dia &dia : dias)
        semana.emplace_back(Command6(dia.numero));
    semana.push_back(Stretch());
    setContents(this, Column{
                          Fields{{u"Desde :"_s, Row{dt1, new QLabel(u"hasta :"_s), dt2, Stretch()}},
                                 {u"Días :"_s, Row(semana)},
                                 {u"Mañana de :"_s, Row{tomarhora(0), new QLabel(u"a"_s), tomarhora(1),
                                                        Space(16), new QLabel(u"Tarde de :"_s), tomarhora(2),
                                                        new QLabel(u"a"_s), tomarhora(3), Stretch()}}},
                          Row{Command7, Command8, Stretch()},
                          ProgressBar1,
                      });
    layout()->setContentsMargins(0, 0, 0, 0);
}

void HerramientaHorarios::setProfesional(qint64 idProfesional, const QString &nombre)
{
    idProfesional_ = idProfesional;
    nombre_ = nombre;
}

bool HerramientaHorarios::hayProfesional() const
{
    return idProfesional_ != 0;
}

void HerramientaHorarios::alternarDia(int dia)
{
    marcar(Command6(dia), !elegido(Command6(dia)));
}

void HerramientaHorarios::diasEnVerde()
{
    for (auto &[dia, boton] : Command6)
        marcar(*boton, false);
}

horarios::Esquema HerramientaHorarios::esquema() const
{
    horarios::Esquema esquema;
    esquema.idProfesional = idProfesional_;
    esquema.nombre = nombre_;
    esquema.desde = dt1.date();
    esquema.hasta = dt2.date();
    for (const Dia &dia : dias)
        esquema.dias.set(static_cast<std::size_t>(dia.numero), elegido(Command6(dia.numero)));
    for (int i = 0; i < 4; ++i)
        esquema.horas[static_cast<std::size_t>(i)] = tomarhora(i).time();
    if (const auto minutos = basic::toNumber(intervalo_.text()))
        esquema.intervalo = static_cast<int>(*minutos);
    return esquema;
}

/// A year of places takes a while: the bar moves on with the dates, and the screen waits for its end.
void HerramientaHorarios::trabajar(const std::function<void(const horarios::Avance &)> &trabajo)
{
    MODULE11::RelojEspera();
    ProgressBar1.setValue(0);
    ProgressBar1.show();
    const auto alTerminar = qScopeGuard([this] {
        MODULE11::RelojNormal();
        ProgressBar1.hide();
        emit cambiado(dt1.date());
    });
    trabajo([this](int hechas, int total) {
        ProgressBar1.setRange(0, total);
        ProgressBar1.setValue(hechas);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
}

void HerramientaHorarios::aplicar()
{
    const auto reemplazar = askOrCancelBox(
        u"Atención, desea eliminar los turnos y horarios asignados entre el período especificado y crear un esquema de citas nuevo para dicho profesional??. Si ya asignó un esquema entre dichas fechas anteriormente pero para otros dias de la semana, haga click en NO, si necesita rehacer los turnos o cambiar horarios, haga click en SI."_s,
        u"Atención"_s);
    if (!reemplazar)
        return;
    if (!hayProfesional()) {
        error(u"Error, seleccione un profesional!"_s);
        return;
    }
    const horarios::Esquema pedido = esquema();
    if (!horarios::intervaloValido(pedido.intervalo)) {
        error(u"Error, los minutos entre turnos deben ser más que cero."_s);
        markWrong(intervalo_, u"Minutos, más que cero"_s);
        return;
    }
    trabajar([&](const horarios::Avance &avance) { horarios::aplicar(pedido, *reemplazar, avance); });
    diasEnVerde();
}

void HerramientaHorarios::quitar()
{
    if (!askBox(
            u"Atención, se eliminarán los turnos asignados al profesional en dicho período, desea continuar??"_s,
            u"Atención"_s, Answer::No, Icon::Exclamation))
        return;
    if (!hayProfesional()) {
        error(u"Error, seleccione un profesional!"_s);
        return;
    }
    trabajar([&](const horarios::Avance &avance) { horarios::quitar(esquema(), avance); });
    diasEnVerde();
}

#include "moc_herramientaHorarios.cpp"
