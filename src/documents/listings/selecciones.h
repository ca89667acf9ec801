#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <optional>

/// What the windows of reports select: formulas for the report files, and queries for the lists. Whatever a
/// person typed or chose enters them as a literal.
namespace seleccion
{

struct Periodo {
    basic::Date desde, hasta; ///< both included
};

/// What narrows a report of appointments or visits; what is not set takes all.
struct Filtros {
    std::optional<QString> profesional = {}, paciente = {}, obraSocial = {};
    std::optional<qint64> idPrestacion = {}; ///< of visits only, as the state of its order
    std::optional<QString> estadoDeOrden = {};
};

QString deConsultas(const Periodo &periodo);
/// The visits with the diagnosis in any of its five places.
QString dePatologia(const Periodo &periodo, const QString &diagnostico);
/// The patients of a professional, or all.
QString dePacientes(const std::optional<qint64> &idProfesional);
QString deTurnos(const Periodo &periodo, const Filtros &filtros);
QString deAtenciones(const Periodo &periodo, const Filtros &filtros);

QString listaDeConsultas(const Periodo &periodo);
/// The list of a diagnosis reaches beyond the period: the dates bind to the first of the visit's five places,
/// and the other four count at any date, as the practice has always read it.
QString listaPorDiagnostico(const Periodo &periodo, const QString &diagnostico);
QString listaDePacientes(const std::optional<qint64> &idProfesional);

} // namespace seleccion
