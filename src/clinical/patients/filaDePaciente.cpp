#include "clinical/patients/filaDePaciente.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/database.h"

using namespace Qt::StringLiterals;

namespace clinical
{

namespace
{

dao::Recordset filas(const QString &sql, qint64 numero)
{
    return MODULE11::BaseDatos.openRecordset(sql + QString::number(numero));
}

void escribeCondicionFamiliar(qint64 numero, const panComFliar &familia)
{
    dao::Recordset pediatria = filas(u"Select * from Pediatria where numero = "_s, numero);
    if (pediatria.eof()) {
        pediatria.addNew();
        pediatria[u"numero"] = numero;
    } else {
        pediatria.edit();
    }
    escribeFamilia(pediatria, familia);
    pediatria.update();
    reemplazaPatologiasFamiliares(numero, familia.patologias());
}

QStringList patologiasFamiliares(qint64 numero)
{
    QStringList patologias;
    for (dao::Recordset fila = filas(u"Select * from [Patologias Familiares] where Paciente = "_s, numero);
         !fila.eof(); fila.moveNext())
        patologias += fila[u"Patologia"].text();
    return patologias;
}

void escribe(qint64 numero, const panNuePaciente &ficha)
{
    dao::Batch juntas(MODULE11::BaseDatos);
    auto paciente = services::paciente(numero);
    if (!paciente)
        throw dao::Error(dao::Error::NoCurrentRecord, u"El paciente ya no está en el registro."_s);
    paciente->edit([&] { escribeIdentidad(*paciente, ficha); });
    if (const panComFliar *familia = ficha.condicionFamiliar())
        escribeCondicionFamiliar(numero, *familia);
    juntas.commit();
}

} // namespace

void escribeIdentidad(dao::Recordset &pacientes, const panNuePaciente &ficha)
{
    pacientes[u"Apellido y nombres"] = ficha.nombre();
    pacientes[u"Fecha de Nacimiento"] = ficha.nacimiento();
    pacientes[u"Documento"] = ficha.documento();
    pacientes[u"sexo"] = ficha.sexo();
    pacientes[u"Grupo sanguineo"] = ficha.grupoSanguineo();
    pacientes[u"obra social"] = ficha.obraSocial();
    pacientes[u"Numero de afiliado"] = ficha.numeroDeAfiliado();
    pacientes[u"Situacion Conyugal"] = ficha.situacionConyugal();
    pacientes[u"Domicilio"] = ficha.domicilio();
    pacientes[u"Localidad"] = ficha.localidad();
    pacientes[u"Telefono"] = ficha.telefono();
    pacientes[u"Provincia"] = ficha.provincia();
    pacientes[u"Pais"] = ficha.pais();
    pacientes[u"Es turista o esporadico"] = ficha.esTurista();
    pacientes[u"email"] = ficha.email();
    pacientes[u"Barrio"] = ficha.barrio();
    pacientes[u"CodigoPostal"] = ficha.codigoPostal();
    if (ficha.editaBaja())
        pacientes[u"FechaBaja"] = ficha.fechaDeBaja();
}

void escribeFamilia(dao::Recordset &pediatria, const panComFliar &familia)
{
    pediatria[u"Nombre del padre"] = familia.nombreDelPadre();
    pediatria[u"Nombre de la madre"] = familia.nombreDeLaMadre();
    pediatria[u"Fecha Nacim Padre"] = familia.nacimientoDelPadre();
    pediatria[u"Fecha Nacim Madre"] = familia.nacimientoDeLaMadre();
    pediatria[u"Ocupacion Padre"] = familia.ocupacionDelPadre();
    pediatria[u"Ocupacion Madre"] = familia.ocupacionDeLaMadre();
    pediatria[u"Hs permanencia padre"] = familia.horasDelPadre();
    pediatria[u"Hs permanencia madre"] = familia.horasDeLaMadre();
}

void reemplazaPatologiasFamiliares(qint64 paciente, const QStringList &patologias)
{
    MODULE11::BaseDatos.execute(u"Delete * from [patologias familiares] where paciente = "_s +
                                QString::number(paciente));
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Patologias Familiares"_s);
    for (auto patologia = patologias.rbegin(); patologia != patologias.rend(); ++patologia) {
        filas.addNew();
        filas[u"Paciente"] = paciente;
        filas[u"Patologia"] = *patologia;
        filas.update();
    }
}

bool editaPaciente(qint64 numero)
{
    panNuePaciente ficha;
    {
        auto paciente = services::paciente(numero);
        if (!paciente) {
            MODULE11::MuestraError(u"Paciente no encontrado"_s);
            return false;
        }
        dao::Recordset pediatria = filas(u"Select * from Pediatria where numero = "_s, numero);
        ficha.mostrar(*paciente, pediatria.eof() ? nullptr : &pediatria, patologiasFamiliares(numero));
    }
    for (;;) {
        ficha.showModal();
        if (ficha.tag() != u"SI")
            return false;
        try {
            escribe(numero, ficha);
            return true;
        } catch (const dao::Error &error) {
            MODULE11::MuestraError(u"Los cambios del paciente no se guardaron.\n"_s + error.description());
        }
    }
}

bool editaCondicionFamiliar(qint64 numero)
{
    panComFliar familia;
    {
        dao::Recordset pediatria = filas(u"Select * from Pediatria where numero = "_s, numero);
        familia.mostrar(pediatria.eof() ? nullptr : &pediatria, patologiasFamiliares(numero));
    }
    for (;;) {
        familia.showModal();
        if (familia.tag() != u"SI")
            return false;
        try {
            dao::Batch juntas(MODULE11::BaseDatos);
            escribeCondicionFamiliar(numero, familia);
            juntas.commit();
            return true;
        } catch (const dao::Error &error) {
            MODULE11::MuestraError(u"La condición familiar no se guardó.\n"_s + error.description());
        }
    }
}

} // namespace clinical
