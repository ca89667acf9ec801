#include "clinical/patients/fichas.h"

#include "clinical/patients/buscaPaciente.h"
#include "clinical/patients/panNuePaciente.h"
#include "clinical/patients/panSeekPaciente.h"
#include "clinical/patients/panSelPaciente.h"
#include "core/security/eventos.h"
#include "core/services/profesional.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/settings/settings.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using basic::ignoringErrors;

namespace
{

/// The window that opens a patient's record, by the setting "Abrir ficha paciente".
struct Ventana {
    const char *ajuste, *nombre, *caption;
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
    return ventana.nombre == QByteArrayView("panEHC") ? fichaGlobal : ventana;
}

/// Until a window exists the patient's visits stand in for it, under their own caption.
void abrir(const Ventana &ventana, const QString &numero, const QString &nombre)
{
    const QString pedida = QString::fromUtf8(ventana.nombre);
    const QString caption = QString::fromUtf8(ventana.caption);
    if (!screens::has(pedida))
        screens::showChild(u"panVisitas"_s, numero);
    else
        screens::showChild(pedida, numero, caption.isEmpty() ? QString() : caption + nombre);
}

/// Sets one column of the row being added; a value that the column does not take leaves it empty.
template <class T>
void poner(dao::Recordset &filas, QStringView campo, const T &valor)
{
    ignoringErrors([&] { filas[campo] = basic::Value(valor); });
}

void agregarPaciente(const panNuePaciente &ficha, qint64 idProfesional)
{
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    pacientes.addNew();
    poner(pacientes, u"Numero", ficha.numero());
    poner(pacientes, u"Apellido y nombres", ficha.nombre());
    poner(pacientes, u"Fecha de Nacimiento", ficha.nacimiento());
    poner(pacientes, u"Documento", ficha.documento());
    poner(pacientes, u"sexo", ficha.sexo());
    poner(pacientes, u"Grupo sanguineo", ficha.grupoSanguineo());
    poner(pacientes, u"obra social", ficha.obraSocial());
    poner(pacientes, u"Numero de afiliado", ficha.numeroDeAfiliado());
    poner(pacientes, u"Situacion Conyugal", ficha.situacionConyugal());
    poner(pacientes, u"Historia Clinica", u"-"_s);
    poner(pacientes, u"Domicilio", ficha.domicilio());
    poner(pacientes, u"Localidad", ficha.localidad());
    poner(pacientes, u"Telefono", ficha.telefono());
    poner(pacientes, u"Provincia", ficha.provincia());
    poner(pacientes, u"Pais", ficha.pais());
    poner(pacientes, u"Es turista o esporadico", ficha.esTurista());
    poner(pacientes, u"idProfesional", idProfesional);
    poner(pacientes, u"email", ficha.email());
    poner(pacientes, u"Barrio", ficha.barrio());
    poner(pacientes, u"CodigoPostal", ficha.codigoPostal());
    pacientes.update();
}

void agregarPatologiasFamiliares(const panComFliar &familia, const QString &numero)
{
    const QStringList lista = familia.patologias();
    for (qsizetype i = lista.size() - 1; i >= 0; --i) {
        ignoringErrors([&] {
            dao::Recordset patologias = MODULE11::BaseDatos.openRecordset(u"Patologias Familiares"_s);
            patologias.addNew();
            patologias[u"Paciente"] = numero;
            patologias[u"Patologia"] = lista[i];
            patologias.update();
        });
    }
}

void agregarPediatria(const panNuePaciente &ficha)
{
    dao::Recordset pediatria = MODULE11::BaseDatos.openRecordset(u"Select * from Pediatria"_s);
    pediatria.addNew();
    poner(pediatria, u"Numero", ficha.numero());
    if (const panComFliar *familia = ficha.condicionFamiliar()) {
        poner(pediatria, u"Nombre del padre", familia->nombreDelPadre());
        poner(pediatria, u"Nombre de la madre", familia->nombreDeLaMadre());
        poner(pediatria, u"Fecha Nacim Padre", familia->nacimientoDelPadre());
        poner(pediatria, u"Fecha Nacim Madre", familia->nacimientoDeLaMadre());
        poner(pediatria, u"Ocupacion Padre", familia->ocupacionDelPadre());
        poner(pediatria, u"Ocupacion Madre", familia->ocupacionDeLaMadre());
        poner(pediatria, u"Hs permanencia padre", familia->horasDelPadre());
        poner(pediatria, u"Hs permanencia madre", familia->horasDeLaMadre());
        agregarPatologiasFamiliares(*familia, ficha.numero());
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

} // namespace

void NuevaFicha()
{
    panNuePaciente ficha;
    ficha.showModal();
    if (ficha.tag() != u"SI")
        return;
    const basic::Value idProfesional = MODULE11::CampoDelProfesional(ficha.profesional(), u"idProfesional");
    ignoringErrors([&] { agregarPaciente(ficha, idProfesional.integer()); });
    ignoringErrors([&] { agregarPediatria(ficha); });
    if (MODULE11::Pregunta(u"Desea visualizar la ficha ahora?"_s))
        ignoringErrors([&] { abrir(ventanaParaNuevo(), ficha.numero(), ficha.nombre()); });
}

void AbreFicha()
{
    const QString numero = EligePaciente();
    if (numero.isEmpty() || numero == u"0")
        return;
    const Ventana &ventana = ventanaDelAjuste();
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    pacientes.setIndex(u"primarykey");
    pacientes.seek(u"=", numero);
    if (pacientes.noMatch()) {
        MODULE11::MuestraError(u"Paciente no encontrado"_s);
        return;
    }
    abrir(ventana, numero, pacientes[u"Apellido y Nombres"].text());
}

void BorraFicha()
{
    const QString numero = EligePaciente();
    if (numero.isEmpty() || numero == u"0" ||
        !MODULE11::Pregunta(u"ATENCION : Borra este registro de la base"_s))
        return;
    try {
        const QString nombre =
            MODULE11::BuscaCampo(u"Select numero, [Apellido y nombres] from Pacientes where numero =  "_s +
                                     numero,
                                 u"Apellido y nombres")
                .text();
        MODULE11::RegistraEvento(u"BORRAR PACIENTE"_s, u"Paciente Borrado : "_s + nombre);
        for (const char *borrado : borrados)
            MODULE11::BaseDatos.execute(QString::fromUtf8(borrado) + numero);
    } catch (const basic::Error &) {
        MODULE11::MuestraError(
            u"Se produjo un error al querer borrar datos del paciente seleccionado, posiblemente alguna ventana abierta con los datos del mismo."_s);
    }
}

QString EligePaciente()
{
    panSelPaciente seleccion;
    seleccion.showModal();
    return seleccion.tag();
}

QString PideNombreDePaciente()
{
    panSeekPaciente dialogo;
    dialogo.showModal();
    return dialogo.tag() == u"SI" ? dialogo.texto() : QString();
}

void BuscaEnPacientes(dao::Recordset &pacientes)
{
    buscaPaciente dialogo;
    dialogo.showModal();
    QApplication::processEvents(); // the closing dialogue's place is painted before a long search
    if (dialogo.tag() == u"PORHI")
        pacientes.findFirst(u"[Numero] = "_s + dialogo.texto());
    else if (dialogo.tag() == u"PORAP")
        dialogo.mover(pacientes, u"[Apellido y Nombres] LIKE '%1'"_s.arg(dialogo.patron()));
}
