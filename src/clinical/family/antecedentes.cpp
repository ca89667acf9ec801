#include "clinical/family/antecedentes.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace familia
{

namespace
{

// An affection tells its kind by how it begins.
const QString deEnfermedad = u"="_s;
const QString deMuerte = u"FALL :"_s;
constexpr qsizetype largo = 255; ///< of the column

void anotar(Antecedentes &antecedentes, const QString &afeccion)
{
    if (afeccion.startsWith(deEnfermedad))
        antecedentes.enfermedades += afeccion.mid(deEnfermedad.size());
    else if (afeccion.startsWith(deMuerte))
        antecedentes.muerte = afeccion.mid(deMuerte.size()).trimmed();
    else if (!afeccion.isEmpty())
        antecedentes.grupos += afeccion;
}

QString delPaciente(qint64 paciente)
{
    return u"Paciente = "_s + QString::number(paciente);
}

QString delPariente(qint64 paciente, const QString &pariente)
{
    return delPaciente(paciente) + u" and Pariente = "_s + dao::quoted(pariente);
}

} // namespace

const QString fallecido = u"Fallecido"_s;

std::span<const Pariente> parientes()
{
    static const Pariente todos[] = {
        {u"Abuelo Paterno"_s, u"Abuelo"_s, u"abuelo"_s},
        {u"Abuelo Materno"_s, u"Abuelo"_s, u"abuelo"_s},
        {u"Abuela Paterna"_s, u"Abuela"_s, u"abuela"_s},
        {u"Abuela Materna"_s, u"Abuela"_s, u"abuela"_s},
        {u"Papa"_s, u"Papa"_s, u"papa"_s},
        {u"Mama"_s, u"Mama"_s, u"mama"_s},
        {u"Tios Paternos"_s, u"Tios"_s, u"tios"_s},
        {u"Tios Maternos"_s, u"Tios"_s, u"tios"_s},
        {u"Hermanos"_s, u"Hermanos"_s, u"hermanos"_s},
    };
    return todos;
}

std::map<QString, Antecedentes> leer(qint64 paciente)
{
    std::map<QString, Antecedentes> familia;
    dao::Recordset filas = BaseDatos.openRecordset(u"Select Pariente, Afeccion from Antecedentes where "_s +
                                                   delPaciente(paciente));
    for (; !filas.eof(); filas.moveNext())
        anotar(familia[filas[u"Pariente"].text()], filas[u"Afeccion"].text());
    return familia;
}

Antecedentes leer(qint64 paciente, const QString &pariente)
{
    const auto familia = leer(paciente);
    const auto suyos = familia.find(pariente);
    return suyos == familia.end() ? Antecedentes() : suyos->second;
}

void guardar(qint64 paciente, const QString &pariente, const Antecedentes &antecedentes)
{
    dao::Batch deUnaVez(BaseDatos);
    BaseDatos.execute(u"Delete * from Antecedentes where "_s + delPariente(paciente, pariente));
    dao::Recordset filas = BaseDatos.openRecordset(u"Antecedentes"_s);
    const auto agregar = [&](const QString &afeccion) {
        filas.addNew();
        filas[u"Paciente"] = paciente;
        filas[u"Pariente"] = pariente;
        filas[u"Afeccion"] = afeccion.left(largo);
        filas.update();
    };
    for (const QString &grupo : antecedentes.grupos)
        agregar(grupo);
    if (antecedentes.muerte)
        agregar(deMuerte + u' ' + *antecedentes.muerte);
    for (const QString &enfermedad : antecedentes.enfermedades)
        agregar(deEnfermedad + enfermedad);
    deUnaVez.commit();
}

QStringList enPalabras(const Antecedentes &antecedentes)
{
    QStringList lineas = antecedentes.grupos;
    if (antecedentes.muerte) {
        lineas.removeAll(fallecido);
        lineas.prepend(antecedentes.muerte->isEmpty() ? fallecido
                                                      : fallecido + u" : "_s + *antecedentes.muerte);
    }
    return lineas + antecedentes.enfermedades;
}

QStringList resumen(const std::map<QString, Antecedentes> &familia)
{
    QStringList nombres;
    for (const Pariente &pariente : parientes())
        if (familia.contains(pariente.nombre))
            nombres += pariente.nombre;
    for (const auto &[nombre, antecedentes] : familia)
        if (!nombres.contains(nombre))
            nombres += nombre;
    QStringList lineas;
    for (const QString &nombre : nombres)
        for (const QString &linea : enPalabras(familia.at(nombre)))
            lineas += u"%1 -> %2"_s.arg(nombre, linea);
    return lineas;
}

} // namespace familia
