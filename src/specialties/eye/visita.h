#pragma once

#include "core/records/campos.h"
#include "specialties/eye/archivo.h"
#include "specialties/eye/sellos.h"

/// The eye visits, rows of `ConsultaOftalmo`; a new one has a row of `Consulta` as well, so that the
/// patient's count, the statistics and the billing see it.
namespace oftalmo
{

/// A cell of the strabismus grid: three rows of nine.
struct Celda {
    QStringView control; ///< its array
    int indice;
    QString columna;
    QStringView inicial; ///< what an empty one starts as
};
const std::vector<Celda> &celdasDeEstrabismo();

/// The column that holds the base path of a drawing's file.
QString columnaDe(Clase clase);

struct Visita {
    records::Valores valores;             ///< by column
    std::map<Clase, Dibujo> dibujos = {}; ///< those that were drawn anew
};

/// All columns of a visit; nothing for an unknown number. Throws dao::Error.
std::optional<records::Valores> leerVisita(qint64 idConsulta);
/// A new visit of the patient as it opens: today, the history told so far, the grid at rest.
records::Valores visitaNueva(qint64 paciente);
/// Writes a visit, a new one with id 0, and its drawings; its number. Throws dao::Error, or basic::Error when
/// a drawing cannot be written; of a new visit then nothing is left.
qint64 guardarVisita(qint64 paciente, qint64 idConsulta, const Visita &visita);
/// The last visit by date.
std::optional<qint64> ultimaVisita(qint64 paciente);

/// The practice's own texts of a kind.
enum class Textos { Motivos, Recetas };
QString consultaDeTextos(Textos clase); ///< the statement that lists them, in `Descripcion`
void agregarTexto(Textos clase, const QString &texto);
void quitarTexto(Textos clase, const QString &texto);

} // namespace oftalmo
