// What a person does on the patient's page; what it reads is in panEstadPaciente.cpp.
#include "clinical/catalogues/eleccion.h"
#include "clinical/laboratory/panComplem.h"
#include "clinical/patients/filaDePaciente.h"
#include "clinical/summary/panEstadPaciente.h"
#include "clinical/summary/tablasDelResumen.h"
#include "clinical/visits/nuevaConsulta.h"
#include "core/security/alarmas.h"
#include "core/security/eventos.h"
#include "core/security/niveles.h"
#include "core/services/antecedentesPersonales.h"
#include "core/services/paciente.h"
#include "core/services/panSelFecha.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/settings/settings.h"

#include <QEvent>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace forms;
using clinical::Abre;
using clinical::Comando;
using clinical::Especialidad;

namespace
{

const QString seccion = u"Miscelaneas"_s, clave = u"Ultimo módulo visitado"_s;

} // namespace

void panEstadPaciente::load()
{
    traerAlFrente(clinical::especialidadDe(settings::getSetting(seccion, clave)));
}

void panEstadPaciente::traerAlFrente(const Especialidad &especialidad)
{
    lblEspec.setCaption(QString::fromUtf8(especialidad.nombre));
    for (const auto &[indice, panel] :
         panelDe_) { // the one in front takes its own room, not the largest one's
        const auto politica = indice == especialidad.panel ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        panel->setSizePolicy(politica, politica);
    }
    paneles_.setCurrentWidget(panelDe_.at(especialidad.panel));
    for (auto &[i, icono] : icoesp)
        icono->setChecked(i == especialidad.icono);
}

/// The special reports of a speciality are in its menu of the main window.
void panEstadPaciente::ofrecerInformes()
{
    const QString nombre = QString::fromUtf8(clinical::especialidadDe(lblEspec.caption()).menu);
    auto *menu = nombre.isEmpty() ? nullptr : window()->findChild<QMenu *>(nombre);
    boton("Command4").setMenu(menu);
    boton("Command4").setEnabled(menu);
}

void panEstadPaciente::elegirEspecialidad(const Especialidad &especialidad)
{
    traerAlFrente(especialidad);
    ofrecerInformes();
    settings::saveSetting(seccion, clave, lblEspec.caption());
    if (!services::numeroDePaciente(tag()))
        return;
    const QString filtro =
        Check2.isChecked() ? u"EspecialidadPLUS = %1 and "_s.arg(dao::quoted(lblEspec.caption())) : QString();
    mostrarConsultas(
        u"Select * from consulta where %1paciente = %2 order by fecha, hora"_s.arg(filtro, tag()));
}

void panEstadPaciente::filtrarConsultas()
{
    const QString especialidad =
        Check2.isChecked() ? u" and EspecialidadPLUS = %1"_s.arg(dao::quoted(lblEspec.caption())) : QString();
    mostrarConsultas(u"Select * from consulta where Dr = %1 and paciente = %2%3 order by fecha, hora"_s.arg(
        dao::quoted(MODULE11::DrActual), tag(), especialidad));
}

void panEstadPaciente::abrirComando(const Comando &comando)
{
    if (numero() == 0) {
        MODULE11::MuestraError(
            u"Error, no existe un puntero adecuado para ubicar al paciente !, Intente cerrar esta ventana y volverla a abrir, seleccionando un paciente."_s);
        return;
    }
    if (const QString nivel = QString::fromLatin1(comando.nivel);
        !nivel.isEmpty() && !MODULE11::VerificaNivel(nivel))
        return;
    const QString dato = QString::fromUtf8(comando.dato);
    switch (comando.abre) {
    case Abre::Ventana:
        abrirVentana(comando, tag());
        break;
    case Abre::Hija: // the page is shown anew when it comes back to the front
        screens::showChild(*screens::Window::find(QString::fromLatin1(comando.ventana)), tag(),
                           tituloDe(comando));
        return;
    case Abre::Pagina:
        abrirVentana(comando, dato);
        break;
    case Abre::Examen:
        complementos::abrir(numero(), dato);
        break;
    case Abre::UltimaLectura:
        abrirUltimaLectura();
        return;
    case Abre::Presupuestos:
        ports::abrePresupuestos(numero());
        break;
    case Abre::EvaluacionDeportiva:
        if (!clinical::tieneEvolucionCardiologica(numero())) {
            msgBox(u"Debe generar un nuevo registro primero desde el botón Evolución !"_s, Icon::Information,
                   u"Atención"_s);
            return;
        }
        abrirVentana(comando, tag());
        break;
    }
    llenar();
}

QString panEstadPaciente::tituloDe(const Comando &comando) const
{
    return *comando.titulo ? QString::fromUtf8(comando.titulo) + datos_.at("Text10")->caption() : QString();
}

void panEstadPaciente::abrirVentana(const Comando &comando, const QString &etiqueta)
{
    auto ventana = screens::make(*screens::Window::find(QString::fromLatin1(comando.ventana)));
    if (!ventana)
        return;
    ventana->setTag(etiqueta);
    if (const QString titulo = tituloDe(comando); !titulo.isEmpty())
        ventana->setWindowTitle(titulo);
    ventana->showModal();
}

/// The reading check is a part of the last visit.
void panEstadPaciente::abrirUltimaLectura()
{
    if (const auto ultima = ports::ultimaVisitaOftalmo(numero()))
        abrirVisitaOftalmologica(*ultima);
    else
        MODULE11::MuestraError(u"El paciente no tiene consultas oftalmológicas."_s);
}

void panEstadPaciente::abrirVisitaOftalmologica(qint64 idConsulta)
{
    if (ports::registrarOftalmo && ports::registrarOftalmo(numero(), idConsulta))
        llenar();
}

void panEstadPaciente::marcarAlarma(const Comando &comando)
{
    if (numero() == 0)
        return;
    const auto mismo = std::ranges::find_if(
        clinical::comandos(), [&](const Comando &otro) { return QByteArrayView(otro.tema) == comando.tema; });
    const bool deTodos = *comando.nivel != 0; // laboratory and studies are asked of all specialities
    MODULE11::AsignaAlarma(numero(), deTodos ? u"TODOS"_s : lblEspec.caption(),
                           QString::fromUtf8(comando.tema), *alarmas_.at(mismo->alarma));
    pintarAlarmas();
}

void panEstadPaciente::nuevaConsulta()
{
    if (numero() == 0 || !MODULE11::VerificaNivel(u"AgregarConsultas"_s))
        return;
    if (lblEspec.caption() == u"Oftalmología") {
        abrirVisitaOftalmologica(0);
        return;
    }
    if (const auto registrada = consultas::capturaYRegistra(tag(), lblEspec.caption())) {
        consultas::avisaExamenSinGuardar(*registrada);
        llenar();
    }
}

void panEstadPaciente::abrirConsultas()
{
    if (numero() == 0 || !MODULE11::VerificaNivel(u"IngresarAConsultas"_s))
        return;
    MODULE11::RegistraEvento(u"INGRESAR A CONSULTAS"_s, u"Evol. de HC. Nº"_s + tag());
    screens::showChild("panVisitas", tag());
}

void panEstadPaciente::agregarAntecedente()
{
    if (numero() == 0)
        return;
    const auto elegido = settings::getSetting(u"Configuracion"_s, u"Clasificador patologico"_s) == u"PERSONAL"
                             ? catalogos::eligeDeLosPropios(u"<Todos>"_s)
                             : catalogos::eligeEnCIE10();
    if (!elegido || elegido->nombre.isEmpty())
        return;
    List3.addLine(elegido->nombre);
    guardarAntecedentes();
}

void panEstadPaciente::quitarAntecedente()
{
    const QList<QListWidgetItem *> elegidos = List3.selectedItems(); // the focus alone chooses nothing
    if (elegidos.isEmpty())
        return;
    qDeleteAll(elegidos);
    guardarAntecedentes();
}

void panEstadPaciente::guardarAntecedentes()
{
    services::guardaAntecedentesPersonales(numero(), List3.lines());
}

bool panEstadPaciente::queryUnload()
{
    guardarNota();
    return true;
}

bool panEstadPaciente::eventFilter(QObject *control, QEvent *evento)
{
    if (control == &Text14 && evento->type() == QEvent::FocusOut)
        guardarNota();
    return false;
}

/// The placeholder is no note.
void panEstadPaciente::guardarNota()
{
    const QString nota = Text14.toPlainText();
    if (numero() == 0 || nota == notaGuardada_)
        return;
    auto fila = services::paciente(numero());
    notaGuardada_ = nota; // told once, not at every click
    if (fila)
        fila->edit([&] { (*fila)[u"ayuda memoria"] = nota; });
    else
        MODULE11::MuestraError(u"Paciente no encontrado!"_s);
}

void panEstadPaciente::elegirAntitetanica()
{
    if (numero() == 0)
        return;
    panSelFecha calendario;
    calendario.showModal();
    if (calendario.tag() != u"SI")
        return;
    dao::Recordset perinatal =
        MODULE11::BaseDatos.openRecordset(u"Select * from Perinatal where IdPaciente = %1"_s.arg(numero()));
    if (!perinatal.eof())
        perinatal.edit([&] { perinatal[u"FechaUltimaAntitetanica"] = calendario.value(); });
    llenar();
}

void panEstadPaciente::recetar()
{
    if (numero() == 0)
        return;
    const auto receta = ports::emiteReceta(numero(), {});
    if (!receta)
        return;
    dao::Recordset recetas = MODULE11::BaseDatos.openRecordset(u"Recetario"_s);
    recetas.addNew();
    recetas[u"Paciente"] = datos_["Text10"]->caption();
    recetas[u"fecha"] = basic::today();
    recetas[u"Receta"] = *receta + u'.';
    recetas[u"idPaciente"] = numero();
    recetas[u"Dr"] = MODULE11::DrActual;
    recetas.update();
}

void panEstadPaciente::editarPaciente()
{
    if (numero() != 0 && MODULE11::VerificaNivel(u"IngresarAPacientes"_s) &&
        clinical::editaPaciente(numero()))
        llenar();
}
