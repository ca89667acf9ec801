#include "paediatrics/perinatal/ficha.h"

#include "core/services/paciente.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;

namespace perinatal
{

namespace
{

using MODULE11::BaseDatos;

const records::FilaPropia filaPerinatal{u"Perinatal"_s, u"idPaciente"_s};
const records::FilaPropia filaPediatria{u"Pediatria"_s, u"numero"_s};

const QString patologiasPerinatales = u"patologias perinatales"_s;
const QString diagnosticoRN = u"diagnostico RN"_s;

QStringList leerLista(const QString &tabla, qint64 paciente)
{
    QStringList lineas;
    dao::Recordset filas = BaseDatos.openRecordset(tabla);
    filas.setIndex(u"paciente");
    for (filas.seek(u"=", paciente);
         !filas.noMatch() && !filas.eof() && filas[u"Paciente"].integer() == paciente; filas.moveNext())
        lineas += filas[u"Patologia"].text();
    return lineas;
}

void escribirLista(const QString &tabla, qint64 paciente, const QStringList &lineas)
{
    BaseDatos.execute(u"delete * from [%1] where paciente = %2"_s.arg(tabla).arg(paciente));
    dao::Recordset filas = BaseDatos.openRecordset(tabla);
    for (const QString &linea : lineas) {
        filas.addNew();
        filas[u"Paciente"] = paciente;
        filas[u"Patologia"] = linea;
        filas.update();
    }
}

/// What is no number was not measured.
double medida(const Valores &valores, const QString &columna)
{
    const basic::Value escrito = valor(valores, columna);
    return escrito.isNumeric() ? escrito.number() : 0;
}

/// The measures of the day of birth are those of this record, whoever had taken others.
void anotarMedidas(qint64 paciente, const Valores &valores)
{
    auto datos = services::paciente(paciente);
    if (!datos || (*datos)[u"Fecha de Nacimiento"].isNull())
        return;
    const basic::Value nacimiento = (*datos)[u"Fecha de Nacimiento"];
    dao::Recordset medidas = BaseDatos.openRecordset(u"Medidas"_s);
    medidas.setIndex(u"pacFecha");
    medidas.seek(u"=", {paciente, nacimiento});
    if (!medidas.noMatch())
        medidas.deleteRow();
    medidas.addNew();
    medidas[u"Paciente"] = paciente;
    medidas[u"fecha"] = nacimiento;
    medidas[u"Peso"] = medida(valores, u"Peso al Nacer"_s);
    medidas[u"Talla"] = medida(valores, u"Talla al Nacer"_s);
    medidas[u"Pc"] = 0;
    medidas.update();
}

} // namespace

Ficha leer(qint64 paciente)
{
    return {filaPerinatal.leer(paciente), filaPediatria.leer(paciente),
            leerLista(patologiasPerinatales, paciente), leerLista(diagnosticoRN, paciente)};
}

void guardar(qint64 paciente, const Ficha &ficha)
{
    dao::Batch golpe(BaseDatos);
    filaPerinatal.escribir(paciente, ficha.perinatal);
    if (!ficha.pediatria.empty())
        filaPediatria.escribir(paciente, ficha.pediatria);
    escribirLista(patologiasPerinatales, paciente, ficha.patologias);
    escribirLista(diagnosticoRN, paciente, ficha.diagnosticos);
    anotarMedidas(paciente, ficha.perinatal);
    golpe.commit();
}

} // namespace perinatal
