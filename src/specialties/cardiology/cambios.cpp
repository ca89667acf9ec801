#include "specialties/cardiology/cambios.h"

#include "core/session/session.h"

using namespace Qt::StringLiterals;

namespace corazon
{

namespace
{

const QStringList propiasDelRegistro = {u"idConsulta"_s, u"idpaciente"_s, u"Fecha"_s};

QString enPalabras(const basic::Value &valor)
{
    if (valor.as<bool>())
        return valor.truth() ? u"Sí"_s : u"No"_s;
    return valor.isBlank() ? u"(nada)"_s : valor.text();
}

} // namespace

QStringList cambios(qint64 paciente, qint64 consulta)
{
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select * from ConsultaCardiologia where idPaciente = %1 order by Fecha, idConsulta"_s.arg(paciente),
        dao::Recordset::Kind::Snapshot);
    std::vector<basic::Value> antes;
    const auto columnas = static_cast<int>(filas.fields().size());
    for (; !filas.eof() && filas[u"idConsulta"].integer() != consulta; filas.moveNext()) {
        antes.clear();
        for (int i = 0; i < columnas; ++i)
            antes.push_back(filas.value(i));
    }
    QStringList dichos;
    if (filas.eof() || antes.empty())
        return dichos;
    for (int i = 0; i < columnas; ++i) {
        const QString columna = filas.fields()[static_cast<std::size_t>(i)].name;
        const QString antigua = enPalabras(antes[static_cast<std::size_t>(i)]),
                      nueva = enPalabras(filas.value(i));
        if (antigua != nueva && !propiasDelRegistro.contains(columna, Qt::CaseInsensitive))
            dichos += u"%1: %2 → %3"_s.arg(columna, antigua, nueva);
    }
    return dichos;
}

} // namespace corazon
