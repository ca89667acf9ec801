#include "clinical/visits/consulta.h"

#include "core/security/eventos.h"
#include "core/services/paciente.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace consultas
{

namespace
{

struct Columnas {
    QStringView nombre, id; ///< the slot's digit goes behind; the one has a blank before it, the other none
};
constexpr Columnas columnas[] = {
    {u"Sintoma ", u"idSintoma"},
    {u"Tratamiento ", u"idTratamiento"},
    {u"Diagnostico ", u"idDiagnostico"},
};

template <class T>
void poner(dao::Recordset &filas, const QString &campo, const T &valor)
{
    basic::ignoring(dao::valueRefused, [&] { filas[campo] = basic::Value(valor); });
}

/// The dose as the catalogue has it today.
void copiarDosis(dao::Recordset &filas, int ranura, qint64 idTratamiento)
{
    dao::Recordset tratamiento = BaseDatos.openRecordset(
        u"Select * from tratamientos where idTratamiento = "_s + QString::number(idTratamiento));
    if (tratamiento.eof())
        return;
    for (const QStringView campo : {u"Dosis", u"Lapso", u"Intervalo"})
        poner(filas, campo.toString() + QString::number(ranura), tratamiento[campo].value());
}

void ponerRenglones(dao::Recordset &filas, Grupo grupo, const std::vector<Renglon> &renglones)
{
    for (int ranura = 1; ranura <= ranuras && ranura <= static_cast<int>(renglones.size()); ++ranura) {
        const Renglon &renglon = renglones[static_cast<std::size_t>(ranura - 1)];
        poner(filas, columna(grupo, ranura), renglon.nombre);
        if (renglon.nombre.isEmpty())
            continue;
        poner(filas, columnas[grupo].id.toString() + QString::number(ranura), renglon.id);
        if (grupo == Tratamientos)
            copiarDosis(filas, ranura, renglon.id);
    }
}

} // namespace

QString columna(Grupo grupo, int ranura)
{
    return columnas[grupo].nombre.toString() + QString::number(ranura);
}

QString lugar(bool consultorio)
{
    return consultorio ? u"Consultorio"_s : u"Domicilio"_s;
}

QString tipo(bool primera)
{
    return primera ? u"1ra."_s : u"Ulterior"_s;
}

qint64 agregarConsulta(dao::Recordset &consultas, const QString &paciente, const Visita &visita,
                       const Copiado &copiado)
{
    consultas.addNew();
    poner(consultas, u"paciente"_s, paciente);
    poner(consultas, u"Nombre del paciente"_s, copiado.nombre);
    poner(consultas, u"Fecha"_s, visita.fecha);
    poner(consultas, u"Hora"_s, visita.hora);
    poner(consultas, u"Lugar de Consulta"_s, lugar(visita.consultorio));
    poner(consultas, u"Tipo"_s, visita.clase.isEmpty() ? tipo(visita.primera) : visita.clase);
    poner(consultas, u"Motivo"_s, visita.motivo);
    poner(consultas, u"Peso"_s, visita.peso);
    poner(consultas, u"Talla"_s, visita.talla);
    poner(consultas, u"Perimetro cefalico"_s, visita.perimetroCefalico);
    poner(consultas, u"Estado General"_s, visita.estadoGeneral);
    poner(consultas, u"Alimentacion"_s, visita.alimentacion);
    if (copiado.edad)
        poner(consultas, u"Edad"_s, *copiado.edad);
    poner(consultas, u"Sexo"_s, copiado.sexo);
    poner(consultas, u"Mutual"_s, copiado.mutual);
    poner(consultas, u"Dr"_s, copiado.dr);
    if (!copiado.monto.isBlank())
        poner(consultas, u"Monto"_s, copiado.monto);
    poner(consultas, u"Pulso"_s, visita.pulso);
    poner(consultas, u"Temperatura"_s, visita.temperatura);
    poner(consultas, u"Respiracion"_s, visita.respiracion);
    poner(consultas, u"EspecialidadPlus"_s, visita.especialidad);
    for (const Grupo grupo : grupos)
        ponerRenglones(consultas, grupo, visita.renglones[grupo]);
    consultas.update();
    consultas.setBookmark(consultas.lastModified());
    return consultas[u"idConsulta"].integer();
}

void agregarExamen(dao::Recordset &exFisico, const QString &paciente, qint64 idConsulta, const Visita &visita,
                   const QString &dr)
{
    for (const Hallazgo &hallazgo : visita.examen) {
        exFisico.addNew();
        exFisico[u"idPaciente"] = paciente;
        exFisico[u"idConsulta"] = idConsulta;
        exFisico[u"Fecha"] = visita.fecha;
        exFisico[u"Titulo"] = hallazgo.titulo;
        exFisico[u"Valor"] = hallazgo.valor;
        exFisico[u"Dr"] = dr;
        exFisico.update();
    }
}

} // namespace consultas

using namespace consultas;

namespace
{

/// Nothing without a coverage, or with one that is not in the table.
basic::Value precioDe(const QString &cobertura)
{
    if (cobertura.isEmpty())
        return {};
    dao::Recordset coberturas = BaseDatos.openRecordset(u"Obra Social"_s);
    coberturas.setIndex(u"Descripcion");
    coberturas.seek(u"=", cobertura);
    return coberturas.noMatch() ? basic::Value() : coberturas[u"Precio Consulta"].value();
}

/// Reads what the visit copies of the patient and notes the visit in the register.
Copiado tomarDelPaciente(const QString &numero, basic::Date fechaDeVisita)
{
    Copiado copiado;
    auto hallado = services::paciente(numero);
    if (!hallado)
        return copiado;
    dao::Recordset &pacientes = *hallado;
    copiado.nombre = pacientes[u"Apellido y Nombres"].text();
    copiado.sexo = pacientes[u"Sexo"].text();
    copiado.mutual = pacientes[u"Obra social"].text();
    if (const basic::Value nacimiento = pacientes[u"Fecha de Nacimiento"]; !nacimiento.isBlank())
        copiado.edad = basic::today().wholeDays() - nacimiento.date().wholeDays();
    pacientes.edit(
        [&] { pacientes[u"Ultima fecha visita"] = fechaDeVisita; }); // even one older than the stored
    return copiado;
}

} // namespace

Registrada registrarConsulta(const QString &numero, const Visita &visita)
{
    dao::Batch lote(BaseDatos);
    Copiado copiado = tomarDelPaciente(numero, visita.fecha);
    copiado.monto = precioDe(copiado.mutual);
    copiado.dr = MODULE11::DrActual;
    dao::Recordset consultas = BaseDatos.openRecordset(u"Consulta"_s);
    Registrada registrada{agregarConsulta(consultas, numero, visita, copiado)};
    MODULE11::RegistraEvento(u"NUEVA CONSULTA "_s, u"Evol. de HC. Nº"_s + numero);
    try {
        dao::Recordset exFisico = BaseDatos.openRecordset(u"ExFisico"_s);
        agregarExamen(exFisico, numero, registrada.idConsulta, visita, copiado.dr);
    } catch (const dao::Error &error) {
        registrada.examenSinGuardar = error.description();
    }
    lote.commit();
    return registrada;
}
