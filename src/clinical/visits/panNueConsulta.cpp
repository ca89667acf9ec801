#include "clinical/visits/panNueConsulta.h"

#include "core/services/paciente.h"
#include "core/services/profesional.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "platform/forms/wrong.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace consultas;
using namespace forms;

namespace
{

constexpr int cHora = 2;

enum Signo { Pulso, Temperatura, Respiracion, Talla, Peso, signos_ };
struct Campo {
    const char *etiqueta;
    int largo; ///< 0 for numbers
};
constexpr Campo signosDelForm[] = {{"&Pulso :", 20},
                                   {"T&emperatura :", 20},
                                   {"Re&spiración :", 20},
                                   {"Ta&lla (Cm) :", 0},
                                   {"Pes&o (Gr) :", 0}};

constexpr int largoDeHallazgo = 100;
constexpr std::size_t renglonesPorColumna = 5;
const QStringList especialidades = {u"Alergia"_s,     u"Pediatría"_s,   u"Neonatología"_s, u"Ginecología"_s,
                                    u"Obstetricia"_s, u"Cardiología"_s, u"Oftalmología"_s, u"Odontología"_s};
constexpr const char *fichas[] = {"&1ro", "&2do", "&3ro"};

/// The one that the workstation's doctor wrote down if it is one of the list, else that of the table of
/// professionals.
QString especialidadHabitual()
{
    if (especialidades.contains(MODULE11::EspecialidadDr))
        return MODULE11::EspecialidadDr;
    return MODULE11::CampoDelProfesional(MODULE11::DrActual, u"Especialidad").text();
}

} // namespace

panNueConsulta::panNueConsulta()
    : Form(u"panNueConsulta"_s), comboEspecialidad(u"comboEspecialidad"_s, especialidades)
{
    setWindowTitle(u"Nueva visita o consulta"_s);
    mDato.add(cHora, 10);
    for (int signo = 0; signo < signos_; ++signo)
        Text3.add(signo, signosDelForm[signo].largo);
    for (const examen::Item &item : examen::items()) {
        TextBox &campo = Text3.add(item.indice, largoDeHallazgo);
        forms::setTag(&campo, QString::fromUtf8(item.titulo));
        campos_[static_cast<std::size_t>(item.marco) / examen::marcosPorFicha].push_back(&campo);
    }
    comboEspecialidad.setValue(especialidadHabitual());
    disponer();
    connect(&Command7, &QPushButton::clicked, this, &panNueConsulta::aceptar);
    connect(&Command8, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueConsulta::disponer()
{
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    setForeColor(lblTeclas, palette().color(QPalette::PlaceholderText));
    setContents(this,
                Column{
                    lblPaciente,
                    Expanding(Row{
                        Expanding(Column{datosDeLaVisita(), signos(),
                                         Expanding(listas.disposicion(ListasDeConsulta::Botones::AlLado))}),
                        Expanding(Tabs(SStab1, {ficha(0), ficha(1), ficha(2)})),
                    }),
                    Row{lblTeclas, Stretch(), Command7, Command8},
                });
    resize(1180, 640);
}

Item panNueConsulta::datosDeLaVisita()
{
    mDato(cHora).setFixedWidth(60);
    text9.setFixedHeight(text9.fontMetrics().lineSpacing() * 2 + 12);
    return Group(u"Consulta Resumida"_s,
                 Fields{{u"&Fecha :"_s, Row{mFecha, Fields{{u"&Hora :"_s, mDato(cHora)}},
                                            opciones.option3d1(0), opciones.option3d1(1), Stretch()}},
                        {u"Espec&ialidad :"_s,
                         Row{comboEspecialidad, opciones.option3d2(0), opciones.option3d2(1), Stretch()}},
                        {u"&Motivo de la consulta :"_s, text9}});
}

Item panNueConsulta::signos()
{
    std::vector<Item> campos;
    for (int signo = 0; signo < signos_; ++signo)
        campos.push_back(Above(QString::fromUtf8(signosDelForm[signo].etiqueta), Text3(signo)));
    return Column{
        Row(std::move(campos)),
        Fields{{u"Estado &General :"_s, Text1}, {u"Estado &Nutricional :"_s, Text2}},
    };
}

Page panNueConsulta::ficha(int numero)
{
    std::vector<Item> marcos;
    for (int i = 0; i < examen::marcosPorFicha; ++i)
        marcos.push_back(marco(static_cast<examen::Marco>(numero * examen::marcosPorFicha + i)));
    marcos.push_back(Stretch());
    return {QString::fromUtf8(fichas[numero]), Column(std::move(marcos))};
}

Item panNueConsulta::marco(examen::Marco marco)
{
    std::vector<FieldRow> renglones;
    for (const examen::Item &item : examen::items())
        if (item.marco == marco)
            renglones.emplace_back(QString::fromUtf8(item.etiqueta), Text3(item.indice));
    const QString titulo = QString::fromUtf8(examen::titulo(marco));
    if (renglones.size() <= renglonesPorColumna)
        return Group(titulo, Fields(std::move(renglones)));
    const auto mitad = renglones.begin() + static_cast<std::ptrdiff_t>((renglones.size() + 1) / 2);
    return Group(titulo, Row{Expanding(Fields(std::vector(renglones.begin(), mitad))),
                             Expanding(Fields(std::vector(mitad, renglones.end())))});
}

void panNueConsulta::load()
{
    mDato(cHora).setText(basic::format(basic::time(), u"HH:MM"));
    listas.setPaciente(tag());
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    text9.setFocus();
}

bool panNueConsulta::queryUnload()
{
    setTag(u"NO"_s);
    return true;
}

/// Esc is easily pressed once too often; the button and the frame are meant.
void panNueConsulta::escape()
{
    if (enBlanco() || MODULE11::PreguntaSiBorra(u"Descarta la consulta que está escribiendo"_s))
        answer(u"NO"_s);
}

bool panNueConsulta::enBlanco() const
{
    const auto vacio = [](const auto &campo) { return campo.second->text().isEmpty(); };
    const auto sinRenglones = [this](Grupo grupo) { return listas.renglones(grupo).empty(); };
    return text9.toPlainText().isEmpty() && Text1.text().isEmpty() && Text2.text().isEmpty() &&
           std::all_of(Text3.begin(), Text3.end(), vacio) &&
           std::all_of(grupos.begin(), grupos.end(), sinRenglones);
}

/// The pages of the examination follow one another as if they were one.
bool panNueConsulta::focusNextPrevChild(bool next)
{
    const int ficha = SStab1.currentIndex();
    const auto &campos = campos_[static_cast<std::size_t>(ficha)];
    const int otra = next ? ficha + 1 : ficha - 1;
    if (focusWidget() != (next ? campos.back() : campos.front()) || otra < 0 || otra >= SStab1.count())
        return Form::focusNextPrevChild(next);
    SStab1.setCurrentIndex(otra);
    const auto &destino = campos_[static_cast<std::size_t>(otra)];
    (next ? destino.front() : destino.back())->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void panNueConsulta::keyPressEvent(QKeyEvent *evento)
{
    const bool entrar = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (entrar && evento->modifiers().testFlag(Qt::ControlModifier))
        aceptar();
    else if (entrar)
        irAlCampoSiguiente();
    else if (evento->key() == Qt::Key_F2)
        anotarNormal();
    else if (evento->key() == Qt::Key_F3)
        listas.agregar(listas.conFoco());
    else
        Form::keyPressEvent(evento);
}

/// The commands of a list are stepped over: a visit without symptoms is typed through without opening the
/// catalogue.
void panNueConsulta::irAlCampoSiguiente()
{
    do
        focusNextPrevChild(true);
    while (listas.comandoConFoco());
}

/// Most of what is examined is normal: one key notes it and goes on.
void panNueConsulta::anotarNormal()
{
    auto *campo = qobject_cast<TextBox *>(focusWidget());
    if (!campo || forms::tag(campo).isEmpty())
        return;
    campo->setText(u"Normal"_s);
    focusNextPrevChild(true);
}

/// The signs must be numbers, so the person is led through each one left blank; it then stands at 0. An hour
/// that is none is not stored, which the person is told before.
void panNueConsulta::aceptar()
{
    for (int signo = 0; signo < signos_; ++signo) {
        if (basic::isNumeric(Text3(signo).text()))
            continue;
        msgBox(u"Dato mal ingresado !!"_s, Icon::Critical, u"Error"_s);
        Text3(signo).setText(u"0"_s);
        markWrong(Text3(signo), u"Un número; queda en 0 si no se escribe otro"_s);
        return;
    }
    const QString hora = mDato(cHora).text();
    if (!hora.isEmpty() && !basic::isDate(hora) &&
        !MODULE11::PreguntaSiBorra(u"«%1» no es una hora. ¿Guarda la consulta sin la hora?"_s.arg(hora))) {
        markWrong(mDato(cHora), u"Una hora como 10:30"_s);
        return;
    }
    answer(u"SI"_s);
}

Visita panNueConsulta::visita() const
{
    Visita visita{.fecha = mFecha.value(),
                  .hora = mDato(cHora).text(),
                  .consultorio = opciones.lugar() == lugar(true),
                  .primera = opciones.tipo() == tipo(true),
                  .motivo = text9.toPlainText(),
                  .peso = Text3(Peso).text(),
                  .talla = Text3(Talla).text(),
                  .estadoGeneral = Text1.text(),
                  .alimentacion = Text2.text(),
                  .pulso = Text3(Pulso).text(),
                  .temperatura = Text3(Temperatura).text(),
                  .respiracion = Text3(Respiracion).text(),
                  .especialidad = comboEspecialidad.value()};
    for (const Grupo grupo : grupos)
        visita.renglones[grupo] = listas.renglones(grupo);
    for (const auto &[indice, campo] : Text3)
        if (const QString titulo = forms::tag(campo.get()); !titulo.isEmpty())
            visita.examen.push_back({titulo, campo->text()});
    return visita;
}

#include "moc_panNueConsulta.cpp"
