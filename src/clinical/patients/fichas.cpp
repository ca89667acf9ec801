#include "clinical/patients/fichas.h"

#include "clinical/patients/eligePaciente.h"
#include "clinical/patients/filaDePaciente.h"
#include "clinical/patients/panNuePaciente.h"
#include "core/security/eventos.h"
#include "core/services/paciente.h"
#include "core/services/profesional.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;

namespace
{

/// The window that opens a patient's record, by the setting "Abrir ficha paciente".
struct Ventana {
    const char *ajuste;
    screens::Window nombre;
    const char *caption;
};
constexpr Ventana fichaGlobal = {"FICHA GLOBAL", "panEstadPaciente", "Ficha Global de "};
constexpr Ventana ventanas[] = {
    {"HC TEXTUAL", "panEditHC", "Historia clínica Textual de "},
    {"HC DESARROLLADA", "panVisitas", "Historia clínica desarrollada de "},
    fichaGlobal,
    {"HC MULTIMEDIA", "panEHC", ""},
};

const Ventana &ventanaDelAjuste()
{
    const QString ajuste = settings::getSetting(u"Configuracion"_s, u"Abrir ficha paciente"_s);
    for (const Ventana &ventana : ventanas)
        if (ajuste == QString::fromUtf8(ventana.ajuste))
            return ventana;
    return fichaGlobal;
}

/// A new patient opens by the same setting, of which only the two histories are told apart here.
const Ventana &ventanaParaNuevo()
{
    const Ventana &ventana = ventanaDelAjuste();
    return *ventana.caption ? ventana : fichaGlobal;
}

/// Until a window exists the patient's visits stand in for it, under their own caption.
void abrir(const Ventana &ventana, qint64 numero, const QString &nombre)
{
    const QString tag = QString::number(numero);
    const QString caption = QString::fromUtf8(ventana.caption);
    if (!screens::has(ventana.nombre))
        screens::showChild("panVisitas", tag);
    else
        screens::showChild(ventana.nombre, tag, caption.isEmpty() ? QString() : caption + nombre);
}

void agregarPaciente(const panNuePaciente &ficha, qint64 idProfesional)
{
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    pacientes.addNew();
    pacientes[u"Numero"] = ficha.numero().value();
    clinical::escribeIdentidad(pacientes, ficha);
    pacientes[u"Historia Clinica"] = u"-"_s;
    pacientes[u"idProfesional"] = idProfesional;
    pacientes.update();
}

void agregarPediatria(const panNuePaciente &ficha)
{
    dao::Recordset pediatria = MODULE11::BaseDatos.openRecordset(u"Select * from Pediatria"_s);
    pediatria.addNew();
    pediatria[u"Numero"] = ficha.numero().value();
    if (const panComFliar *familia = ficha.condicionFamiliar()) {
        clinical::escribeFamilia(pediatria, *familia);
        clinical::reemplazaPatologiasFamiliares(ficha.numero().value(), familia->patologias());
    }
    pediatria.update();
}

/// The statements of a deletion, in their order; each takes the patient's number behind it.
constexpr const char *borrados[] = {
    "Delete * from Consulta where paciente = ",
    "Delete * from Estudios where paciente = ",
    "Delete * from Analisis where paciente = ",
    "Delete * from [Maduracion Neurologica] where paciente = ",
    "Delete * from [patologias perinatales] where paciente = ",
    "Delete * from medidas where paciente = ",
    "Delete * from antecedentes where paciente = ",
    "Delete * from vacunas where paciente = ",
    "Delete * from [patologias familiares] where paciente = ",
    "Delete * from alimentacion where paciente = ",
    "Delete * from [diagnostico RN] where paciente = ",
    "Delete * from [antecedentes personales] where paciente = ",
    "Delete * from pediatria where numero = ",
    "Delete * from perinatal where idpaciente = ",
    "Delete * from pacientes where numero = ",
    "Delete * from Alarmas where idPaciente = ",
    "Delete * from consultaCardiologia where idPaciente = ",
    "Delete * from consultagineco where idPaciente = ",
    "Delete * from consultaoftalmo where Paciente = ",
    "Delete * from Complementos where idPaciente = ",
};

/// False when the patient is not stored: it was told, and what was typed must not be lost.
bool guardar(const panNuePaciente &ficha)
{
    const basic::Value profesional = MODULE11::CampoDelProfesional(ficha.profesional(), u"idProfesional");
    try {
        agregarPaciente(ficha, profesional.isNumeric() ? profesional.integer() : 0);
    } catch (const dao::Error &error) {
        MODULE11::MuestraError(error.number() == dao::Error::DuplicateKey
                                   ? u"Historia clinica ya existente, intente con otro número"_s
                                   : u"El paciente no se guardó.\n"_s + error.description());
        return false;
    }
    try {
        agregarPediatria(ficha);
    } catch (const dao::Error &error) {
        MODULE11::MuestraError(u"El paciente se guardó, pero no su condición familiar.\n"_s +
                               error.description());
    }
    return true;
}

} // namespace

void NuevaFicha()
{
    panNuePaciente ficha;
    do {
        ficha.showModal();
        if (ficha.tag() != u"SI")
            return;
    } while (!guardar(ficha));
    if (MODULE11::Pregunta(u"Desea visualizar la ficha ahora?"_s))
        abrir(ventanaParaNuevo(), ficha.numero().value(), ficha.nombre());
}

void AbreFicha()
{
    if (const std::optional<qint64> numero = EligePaciente())
        AbreFichaDe(*numero);
}

void AbreFichaDe(qint64 numero)
{
    if (auto paciente = services::paciente(numero))
        abrir(ventanaDelAjuste(), numero, (*paciente)[u"Apellido y Nombres"].text());
    else
        MODULE11::MuestraError(u"Paciente no encontrado"_s);
}

void BorraFicha()
{
    const std::optional<qint64> elegido = EligePaciente();
    if (!elegido || !MODULE11::PreguntaSiBorra(u"ATENCION : Borra este registro de la base"_s))
        return;
    const QString numero = QString::number(*elegido);
    try {
        MODULE11::RegistraEvento(u"BORRAR PACIENTE"_s,
                                 u"Paciente Borrado : "_s + services::nombreDePaciente(numero));
        for (const char *borrado : borrados)
            MODULE11::BaseDatos.execute(QString::fromUtf8(borrado) + numero);
    } catch (const basic::Error &) {
        MODULE11::MuestraError(
            u"Se produjo un error al querer borrar datos del paciente seleccionado, posiblemente alguna ventana abierta con los datos del mismo."_s);
    }
}
