#pragma once

#include "core/session/eleccion.h"
#include "platform/dao/recordset.h"

#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace forms
{
class Data;
}

/// What one subsystem asks of another with arguments and an answer. The subsystem that has it provides it at
/// start; a port that nobody provides is false, and what would call it is disabled.
namespace ports
{

template <class Signature>
class Port;

template <class Answer, class... Arguments>
class Port<Answer(Arguments...)>
{
public:
    void provide(std::function<Answer(Arguments...)> function) { function_ = std::move(function); }
    explicit operator bool() const { return function_ != nullptr; }
    Answer operator()(Arguments... arguments) const { return function_(arguments...); }

private:
    std::function<Answer(Arguments...)> function_;
};

/// Lets a person choose a patient: the number; nothing when none was chosen.
inline Port<std::optional<qint64>()> eligePaciente;
/// Asks for the name, or its beginning, of a patient to look for; empty when it was cancelled.
inline Port<QString()> pideNombreDePaciente;
/// Asks for the beginning of a name, or a number, and moves a recordset to the row by the columns named. The
/// text when there is no such row; where nothing was asked for, the row stays.
inline Port<std::optional<QString>(dao::Recordset &filas, const QString &nombre, const QString &numero)>
    buscaEnPacientes;
/// Opens a patient's record in the window of the practice's choice.
inline Port<void(qint64 paciente)> abreFicha;
/// Captures a visit of a patient and records it: its `idConsulta`; nothing when it was cancelled.
inline Port<std::optional<qint64>(qint64 paciente)> registraConsulta;
/// Books the next appointment of a patient; without one the patient is chosen in the dialogue.
inline Port<void(std::optional<qint64> paciente)> otorgaTurno;
/// Takes a patient's measures and stores them; true when they were.
inline Port<bool(qint64 paciente)> tomarMedidas;
/// Body-mass index of a weight in grams and a height in centimetres; 0 when either is 0 or Null.
inline Port<double(const basic::Value &peso, const basic::Value &talla)> calculaImc;
/// From and to what the body-mass index is normal at that age; nothing where there are no figures.
inline Port<std::optional<std::pair<double, double>>(const QString &sexo, qint64 diasDeVida)> imcNormal;
/// A measure ("12.200 g"; empty when it was never taken), when it was taken and its place among children of
/// the age in words ("P63, z +0,3, adecuado para la edad"; empty where there are no figures).
struct MedidaEnPalabras {
    QString valor;
    basic::Date fecha;
    QString lugar;
};
/// The last weight, height, head circumference and body-mass index that were taken of a patient, in that
/// order.
inline Port<std::array<MedidaEnPalabras, 4>(qint64 paciente, const QString &sexo,
                                            const basic::Date &nacimiento)>
    ultimasMedidas;
/// Shows the prescription sheet of a patient with a text to begin with: the prescription to keep, without the
/// point that ends it in the file; nothing when it was closed.
inline Port<std::optional<QString>(qint64 paciente, const QString &textoInicial)> emiteReceta;
/// Lets a person write an eye visit of a patient, a new one with 0, and records it; true when it was.
inline Port<bool(qint64 paciente, qint64 idConsulta)> registrarOftalmo;
/// The last eye visit of a patient.
inline Port<std::optional<qint64>(qint64 paciente)> ultimaVisitaOftalmo;
/// Opens the dentist's record of a patient on the budgets.
inline Port<void(qint64 paciente)> abrePresupuestos;
/// Opens the report with pictures of a complementary examination of a patient.
inline Port<void(qint64 paciente, const QString &examen)> abreComplemento;
/// Lets a person choose a diagnosis from the practice's classifier.
inline Port<std::optional<Renglon>()> eligeDiagnostico;
/// The same for a record that begins somewhere else: from the practice's own list under a title when the
/// setting says so, else from the classification open at a chapter.
inline Port<std::optional<Renglon>(const QString &titulo, int capitulo)> eligePatologia;
/// Lets a person choose a treatment, with the dose for the patient in sight; a blank line when none was.
inline Port<Renglon(const QString &paciente)> eligeTratamiento;
/// Lets a person edit the parents and the family's pathologies of a patient; true when they were stored.
inline Port<bool(qint64 paciente)> editaCondicionFamiliar;
/// Lets a person write a dose of the vaccination plan, whose rows are given: a new one, or the current one.
inline Port<void(forms::Data &plan)> agregaDosisAlPlan, editaDosisDelPlan;
/// A healthy-child control as the visit that it is. The measures are those that were taken last, as the
/// visits keep them; what goes beyond the fifth line of a list is not kept.
struct ControlDeSalud {
    qint64 paciente;
    basic::Date fecha;
    QString peso, talla, perimetroCefalico;
    std::vector<Renglon> diagnosticos, tratamientos;
};
/// Records it among the visits; what cannot be written throws dao::Error.
inline Port<void(const ControlDeSalud &control)> registraControlDeSalud;

} // namespace ports
