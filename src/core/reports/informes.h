#pragma once

#include "platform/reports/output.h"

#include <QString>

/// The practice's reports: the files of the folder "informes" beside the program, run over its base. All
/// throw basic::Error with what keeps a report from being made or a file from being written.
namespace informes
{

/// The report file of this name, whatever its case; its path in the folder when there is none.
QString ruta(const QString &archivo);

/// What every report may tell besides its rows: who the practice is, who prints, and what is given.
reports::Parameters datosDeLaSesion(const reports::Parameters &datos = {});

/// Shows the report in the preview window and returns when it is closed.
void muestra(const QString &archivo, const QString &seleccion, const reports::Parameters &datos = {});
/// Prints it without a preview; false when the person cancelled.
bool imprime(const QString &archivo, const QString &seleccion, const reports::Parameters &datos = {});

/// Writes it as a PDF under that name.
void escribePdf(const QString &archivo, const QString &seleccion, const QString &destino);

/// Asks where to and writes, with the window of long works.
void guardaPdf(reports::Report &informe);
void exportaCsv(const reports::Listing &lista, const QString &titulo);
void exportaPlanilla(const reports::Listing &lista, const QString &titulo);

} // namespace informes
