#include "paediatrics/perinatal/ficha.h"

#include "core/services/paciente.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;

namespace perinatal
{

namespace
{

using MODULE11::BaseDatos;

/// The one row that a patient has in a table.
struct Fila {
    QString tabla, clave;

    dao::Recordset de(qint64 paciente, dao::Recordset::Kind clase = dao::Recordset::Kind::Dynaset) const
    {
        return BaseDatos.openRecordset(u"Select * from %1 where %2 = %3"_s.arg(tabla, clave).arg(paciente),
                                       clase);
    }
};

const Fila filaPerinatal{u"Perinatal"_s, u"idPaciente"_s};
const Fila filaPediatria{u"Pediatria"_s, u"numero"_s};

const QString patologiasPerinatales = u"patologias perinatales"_s;
const QString diagnosticoRN = u"diagnostico RN"_s;

Valores leerFila(const Fila &fila, qint64 paciente)
{
    Valores valores;
    const dao::Recordset filas = fila.de(paciente, dao::Recordset::Kind::Snapshot);
    if (filas.eof())
        return valores;
    for (int i = 0; i < static_cast<int>(filas.fields().size()); ++i)
        valores[filas.fields()[static_cast<std::size_t>(i)].name] = filas.value(i);
    return valores;
}

void escribirFila(const Fila &fila, qint64 paciente, const Valores &valores)
{
    dao::Recordset filas = fila.de(paciente);
    if (filas.eof()) {
        filas.addNew();
        filas[fila.clave] = paciente;
        filas.update();
        filas.requery();
    }
    filas.edit([&] {
        for (const auto &[columna, valor] : valores)
            filas[columna] = valor;
    });
}

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

basic::Value valor(const Valores &valores, const QString &columna)
{
    const auto hallado = valores.find(columna);
    return hallado != valores.end() ? hallado->second : basic::Value(basic::Null{});
}

Ficha leer(qint64 paciente)
{
    return {leerFila(filaPerinatal, paciente), leerFila(filaPediatria, paciente),
            leerLista(patologiasPerinatales, paciente), leerLista(diagnosticoRN, paciente)};
}

void guardar(qint64 paciente, const Ficha &ficha)
{
    dao::Batch golpe(BaseDatos);
    escribirFila(filaPerinatal, paciente, ficha.perinatal);
    if (!ficha.pediatria.empty())
        escribirFila(filaPediatria, paciente, ficha.pediatria);
    escribirLista(patologiasPerinatales, paciente, ficha.patologias);
    escribirLista(diagnosticoRN, paciente, ficha.diagnosticos);
    anotarMedidas(paciente, ficha.perinatal);
    golpe.commit();
}

} // namespace perinatal
