#include "core/reports/papel.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/shell/shell.h"
#include "specialties/odontology/panComparaEsquemas.h"
#include "specialties/odontology/tooth.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largoDelNombre = 100;

} // namespace

/// Lists the schemes and opens the one of that name.
void tooth::llenarCombo(const QString &elegido)
{
    {
        const QSignalBlocker silencio(Combo1);
        Combo1.clear();
        if (paciente_)
            Combo1.addItems(esquemas::nombres(*paciente_));
        Combo1.setValue(elegido);
    }
    abrirEsquema(Combo1.value());
}

void tooth::nuevo()
{
    if (!paciente_) {
        msgBox(u"Seleccione un Paciente"_s, Icon::Exclamation, u"Atención"_s);
        return;
    }
    const auto escrito =
        inputBox(u"Escriba es nombre del nuevo Esquema"_s, u"Odontograma"_s, {}, largoDelNombre);
    const QString nombre = escrito ? escrito->trimmed() : QString();
    if (nombre.isEmpty())
        return;
    if (esquemas::leer(*paciente_, nombre)) {
        MODULE11::MuestraError(u"Ya existe un esquema con ese nombre."_s);
        return;
    }
    esquemas::crear(*paciente_, nombre, {esquema_.string1(), esquema_.string2()});
    // What the new one has taken over may still be wanted in the old one.
    if (dejarCambios(u"Desea guradar los cambios realizados del paciente ?"_s))
        llenarCombo(nombre);
    else
        Combo1.addItem(nombre);
}

/// Until the changes are settled the scheme that they belong to is the chosen one.
void tooth::cambiarEsquema()
{
    const QString nombre = Combo1.value();
    const auto mostrar = [this](const QString &texto) {
        const QSignalBlocker silencio(Combo1);
        Combo1.setValue(texto);
    };
    mostrar(esquema());
    if (!dejarCambios(u"Desea guradar los cambios realizados del paciente ?"_s))
        return;
    mostrar(nombre);
    abrirEsquema(nombre);
}

void tooth::abrirEsquema(const QString &nombre)
{
    const auto guardado = paciente_ && !nombre.isEmpty() ? esquemas::leer(*paciente_, nombre) : std::nullopt;
    leido_ = guardado.value_or(esquemas::Guardado());
    esquema_ = odonto::Esquema::deTexto(leido_.string1, leido_.string2);
    forms::setTag(&Combo1, guardado ? nombre : QString());
    pendiente_ = false;
    cara_ = 0;
    Picture1.mostrar(esquema_);
    Label19.setCaption(guardado ? u"\"%1\""_s.arg(nombre) : u"(Seleccione un esquema)"_s);
    lblSinLeer.setCaption(
        u"Anotaciones de este esquema que no se pueden leer: %1. Al guardar se conservan como están."_s.arg(
            esquema_.sinLeer()));
    lblSinLeer.setVisible(esquema_.sinLeer() > 0);
    mostrarEleccion();
}

void tooth::borrar()
{
    if (!hayDondeTrabajar() ||
        !MODULE11::PreguntaSiBorra(u"Esta seguro que quiere borrar el esquema "_s + esquema() + u"?"_s))
        return;
    esquemas::borrar(*paciente_, esquema());
    llenarCombo({});
}

/// Two stations may have the same scheme open.
bool tooth::guardar()
{
    const auto ahora = esquemas::leer(*paciente_, esquema());
    if (ahora && *ahora != leido_ &&
        !MODULE11::PreguntaSiBorra(
            u"Otra estación guardó cambios en este esquema. ¿Los reemplaza por los de esta ventana?"_s))
        return false;
    leido_ = {esquema_.string1(), esquema_.string2()};
    esquemas::guardar(*paciente_, esquema(), leido_);
    pendiente_ = false;
    return true;
}

/// True when nothing is left to lose.
bool tooth::dejarCambios(const QString &pregunta)
{
    if (!pendiente_ || !paciente_)
        return true;
    if (askBox(pregunta, u"Atencion"_s) && !guardar())
        return false;
    pendiente_ = false;
    return true;
}

void tooth::comparar()
{
    if (!paciente_) {
        msgBox(u"Seleccione un Paciente"_s, Icon::Critical, u"Error"_s);
        return;
    }
    panComparaEsquemas ventana;
    ventana.setTag(tag());
    ventana.showModal();
}

/// The chart, and what is written on each tooth in words.
void tooth::imprimir()
{
    const auto impresora = printing::defaultChoice(u"Odontograma de "_s + Label4.caption());
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    papel.escribir((esquema().isEmpty() ? QString() : u"Esquema: %1     "_s.arg(esquema())) +
                       u"Impreso el "_s + basic::dateText(basic::today()),
                   9);
    Picture1.elegir(0);
    papel.dibujar(Picture1);
    for (int pieza = 1; pieza <= odonto::piezas; ++pieza)
        if (const QString texto = odonto::enPalabras(esquema_, pieza); !texto.isEmpty())
            papel.escribir(
                u"%1, %2: %3"_s.arg(odonto::numeroFdi(pieza)).arg(odonto::nombreDePieza(pieza), texto), 9);
    papel.terminar();
    mostrarEleccion();
}

void tooth::abrirAyuda()
{
    const QString archivo = basic::programFile(u"ayuda\\index.htm"_s);
    if (!shell::openDocument(archivo))
        MODULE11::MuestraError(u"No se puede abrir el documento "_s + archivo);
}
