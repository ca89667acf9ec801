#pragma once

#include "platform/basic/value.h"

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

/// The healthy-child control: what it reads of a child, and where it keeps what was found. What reaches the
/// file throws dao::Error.
namespace sano
{

/// The ages that are looked at differently.
enum class Franja { RecienNacido, Lactante, PreYEscolar, Adolescente };
Franja franjaDe(qint64 diasDeVida);
QString rotulo(Franja franja);

/// A problem that was found stands in the family's pathologies or among the newborn's diagnoses, and stays
/// in the table that it came from.
enum class Tabla { PatologiasFamiliares, DiagnosticoRN };
struct Problema {
    QString nombre;
    Tabla tabla;
    bool operator==(const Problema &) const = default;
};
using Problemas = std::vector<Problema>;
Problemas problemas(qint64 paciente);
/// The list after its tables were read again: as they are now, less what the person took out of it since it
/// was read before, and with what the person added.
Problemas conciliar(const Problemas &antes, const Problemas &enLista, const Problemas &ahora);

QStringList datosPositivos(qint64 paciente); ///< of the physical examination

/// Writes both lists for those that are there, at one stroke; what was written before a failure stays.
void guardarListas(qint64 paciente, const Problemas &problemas, const QStringList &datosPositivos);

/// What each relative had.
QStringList antecedentesFamiliares(qint64 paciente);
/// The items of the neurological maturation that are a problem; one that the child does not do is denied.
QStringList problemasNeurologicos(qint64 paciente);
QStringList alimentos(qint64 paciente);   ///< with what is not tolerated
QStringList escolaridad(qint64 paciente); ///< each sign with its value
QStringList vacunasQueFaltan(qint64 paciente, basic::Date nacimiento);

/// The answer to a yes/no question: "SI", "NO", or Null while it was not asked.
using Respuesta = basic::Value;

inline constexpr std::array<const char16_t *, 4> preguntasDelBinomio = {
    u"Gestación Esperada ?", u"Embarazo Aceptado ?", u"Disposición para la lactancia ?", u"Apoyo paterno ?"};
using Binomio = std::array<Respuesta, preguntasDelBinomio.size()>;
/// The answers about mother and child; a question without a row gets one.
Binomio binomio(qint64 paciente);
void guardar(qint64 paciente, const Binomio &respuestas);

inline constexpr std::array<const char16_t *, 2> pruebasDeScreening = {u"Screening - TSH Neonatal",
                                                                       u"Screening - Fenilanalina Neonatal"};
struct Prueba {
    Respuesta positiva;
    QString valor;
    bool operator==(const Prueba &) const = default;
};
using Screening = std::array<Prueba, pruebasDeScreening.size()>;
/// The metabolic screening of the birth record; a patient without a record gets one.
Screening screening(qint64 paciente);
void guardar(qint64 paciente, const Screening &pruebas);

/// How the sexual maturation was found last; empty when it never was.
QString maduracionSexual(qint64 paciente);
/// Once a day: found otherwise on the same day takes the place of what was noted.
void guardarMaduracionSexual(qint64 paciente, basic::Date fecha, const QString &resultado);

/// The last measuring as it is stored; Null without one.
struct Medidas {
    basic::Value peso{basic::Null{}}, talla{basic::Null{}}, perimetroCefalico{basic::Null{}};
};
Medidas ultimaMedicion(qint64 paciente);

/// The last blood pressure in words, a line for each of the two; nothing when it was never taken.
QStringList ultimaTension(qint64 paciente, const QString &sexo, basic::Date nacimiento);

} // namespace sano
