#pragma once

#include "platform/basic/value.h"
#include "platform/dao/recordset.h"

#include <QString>

class QComboBox;
class QListWidget;
class QWidget;

/// The small shared operations that all screens call. They pass errors of the engine to the caller.
namespace MODULE11
{

bool Pregunta(const QString &texto); ///< box "Pregunta" with Yes and No; true on Yes
/// The same where a Yes deletes or throws away: Enter answers No.
bool PreguntaSiBorra(const QString &texto);
void Aviso(const QString &texto);        ///< box "Mensaje / Aviso"
void MuestraError(const QString &texto); ///< box "E r r o r": the normal way of telling a refused action

/// The value of a field in the query's first row, as it is; Null without rows.
basic::Value BuscaCampo(const QString &sql, QStringView campo);

/// Replaces the entries by the field's values that are not Null, in row order; with no rows the control
/// keeps what it had.
void LlenaLista(QComboBox &lista, const QString &sql, QStringView campo);
void LlenaLista(QListWidget &lista, const QString &sql, QStringView campo);

/// Asks for a text with `buscaDato` and moves the recordset to a row whose field begins with (or holds) it.
/// False when there is no such row; where nothing was asked for, the row stays.
bool BuscaEnLista(dao::Recordset &recordset, const QString &campo);

/// Shows the query as a list in `panListados`, modally.
void MuestraListado(const QString &sql, const QString &titulo);

/// The next key of a table without a counter. Empty when a code was asked for and none given.
basic::Value ProximoCodigo(const QString &titulo, const QString &tabla, const QString &campo);

/// "T" text, "M" memo, "N" number, "D" date, "L" yes/no.
QString TipoDeCampo(const QString &tabla, QStringView campo);

QString NombreDia(int dia);        ///< 1 is "Domingo"; empty out of range
QString NombreMes(int mes);        ///< with "Setiembre"
QString NombreMesListado(int mes); ///< the day book's, with "Septiembre"
QString FechaEnLetras(basic::Date fecha);
/// Asks for a date, starting at the one in the text or at today.
basic::Date PideFecha(const QString &fecha);

void CentraVentana(QWidget &ventana);
void RelojEspera();
void RelojNormal();
/// Unloads all windows, the last active one first, until none is left or one of them stays; true when none
/// is left.
bool DescargaVentanas();

/// The help text of a screen for the note `panHelp`; in this design it is not shown.
void MuestraAyudante(const QString &texto);
void OcultaAyudante();

} // namespace MODULE11
