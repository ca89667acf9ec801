#include "clinical/summary/comandos.h"

#include <QString>

namespace clinical
{

namespace
{

// clang-format off
constexpr Comando todos[] = {
    {"Command90", "Registrar Dosis", Lugar::Pediatria, "panPlanVacunas"},
    {"Command88", "Administrar plan de vacunación", Lugar::Pediatria, "panServices", "", "", false, "", "", "", "Plan de Vacunación"},
    {"command15", "Alimentación", Lugar::Pediatria, "panAlimentacion"},
    {"command9", "Mad.Neurológica", Lugar::Pediatria, "panMadNeurol"},
    {"SsCommand4", "Agudeza Visual", Lugar::Pediatria, "panVisual"},
    {"command13", "Escolaridad", Lugar::Pediatria, "panEscolar"},
    {"command21", "Adolescencia", Lugar::Pediatria, "panAdole"},
    {"sscommand3", "Desarrollo y valores...", Lugar::Alergia, "hc"},
    {"label22", "Consultas...", Lugar::Oftalmologia, "panOft", "", "Consultas de "},
    {"label30", "Fondo de ojos", Lugar::Oftalmologia, "panGraFondoX"},
    {"label31", "Biomicroscopia", Lugar::Oftalmologia, "pangraBioX"},
    {"label84", "Lectura", Lugar::Oftalmologia, "panOft"},
    {"label29", "Odontograma", Lugar::Odontologia, "tooth"},
    {"label32", "Presupuestación...", Lugar::Odontologia, "tooth"},
    {"Label23", "Antecedentes", Lugar::Ginecologia, "panAnteGineco", "", "", false, "alarmaAntecGineco", "GinecoAntecedentes"},
    {"Label54", "Exámenes...", Lugar::Ginecologia, "panGinecoExamen", "", "", false, "alarmaExGineco", "GinecoExamen"},
    {"Label55", "Gestación...", Lugar::Ginecologia, "panGinecoGestas", "", "", false, "alarmaGestacion", "GinecoGestacion"},
    {"Label56", "Especialidades ginecológicas...", Lugar::Ginecologia, "panGinecoOtros", "", "", false, "Picture20", "GinecoEspecialidades"},
    {"Label77", "Vida Sexual...", Lugar::Ginecologia, "panVidaSexual", "", "", false, "alarmaVidaSexual", "GinecoVidaSexual"},
    {"Label44", "Antecedentes", Lugar::Cardiologia, "panAnteCardio"},
    {"Label47", "Riesgo Cardíaco", Lugar::Cardiologia, "panTestCardio", "", "", false, "Picture17", "RiesgoCardiaco"},
    {"Label50", "Tst Rsgo Quirúrgico", Lugar::Cardiologia, "panRiesgoOperatorio", "", "", false, "Picture19", "RiesgoQuirurgico"},
    {"Label52", "Evaluac. Deportiva", Lugar::Cardiologia, "panEvalDeportiva", "", "", false, "Picture18", "EvalDeportiva"},
    {"Label87", "I.M.C.", Lugar::Cardiologia, "panIMC", "", "", false, "Picture21", "Antropometria"},
    {"Label45", "Evolución", Lugar::Cardiologia, "panCardioPrin"},
    {"Label89", "RX de Torax...", Lugar::Cardiologia, "panCardioPrin", "", "", false, "Picture8", "Rx de Torax"},
    {"Label26", "Tensión Arterial", Lugar::Cardiologia, "panTension", "", "Percentilación de la tensión arterial de ", false, "Picture9", "ElectroCardioGrama"},
    {"Label64", "Captura Video", Lugar::Cardiologia, "pancapVideo"},
    {"Label24", "Doppler Cardiovascular", Lugar::Cardiologia, "panComplem", "", "", false, "Picture14", "Doppler Cardiovascular", "Doppler Cardiovascular"},
    {"Label91", "Holter...", Lugar::Cardiologia, "panComplem", "", "", false, "Picture10", "Holter", "Holter"},
    {"Label92", "Ecocardiograma...", Lugar::Cardiologia, "panComplem", "", "", false, "Picture12", "Ecocardiograma", "EcoCardiograma"},
    {"Label93", "Prueba de esfuerzo...", Lugar::Cardiologia, "panComplem", "", "", false, "Picture13", "Prueba de esfuerzo", "Prueba de Esfuerzo"},
    {"Label97", "Coronariografia...", Lugar::Cardiologia, "panComplem", "", "", false, "Picture11", "CoronarioGrafia", "Coronariografía"},
    {"Label98", "Perfusión Miocárdica", Lugar::Cardiologia, "panComplem", "", "", false, "Picture15", "Perfusión Miocárdica", "Perfusión Miocárdica"},
    {"label36", "Laboratorio", Lugar::Seguimiento, "panAnalisis", "IngresarALaboratorio", "", true, "Picture22", "Laboratorio"},
    {"label53", "Otros estudios", Lugar::Seguimiento, "panEstudios", "IngresarAEstudios", "", true, "Picture23", "Estudios Complementarios"},
    {"label39", "Antropometría", Lugar::Seguimiento, "panCrecimiento", "", "", false, "Picture16", "Antropometria"},
    {"sscommand1", "Tensión Arterial", Lugar::Seguimiento, "panTension", "", "Percentilación de la tensión arterial de ", false, "Picture24", "ElectroCardioGrama"},
    {"sscommand5", "Control de salud...", Lugar::Seguimiento, "panControlSano"},
    {"label58", "Apuntes multimedia", Lugar::Seguimiento, "panEHC", "", "", true},
    {"Command4", "Informes especiales", Lugar::Barra, ""},
    {"Command55", "Vademecum", Lugar::Barra, "panTratamientos"},
    {"Command_5", "Recursos de post-consulta", Lugar::Barra, "panAlgorritmos", "IngresarABibliotecaRecursos"},
};

constexpr Especialidad especialidades[] = {
    {"Pediatría", 0, 0, "pediatria", "Pediatría"},
    {"Alergia", 1, 1, "alergia"},
    {"Oftalmología", 2, 2, "oftalmologia", "Oftalmología"},
    {"Cardiología", 3, 3, "cardiologia", "Cardiología"},
    {"Obstetricia", 4, 6, "obstetricia", "Ginecología y Obstetricia"},
    {"Odontología", 5, 5, "odontologia"},
    {"Ginecología", 6, 6, "ginecologia", "Ginecología y Obstetricia"},
    {"Neonatología", 7, 0, "neonatologia", "Pediatría"},
};
// clang-format on

} // namespace

std::span<const Comando> comandos()
{
    return todos;
}

std::span<const Especialidad> especialidadesDelResumen()
{
    return especialidades;
}

const Especialidad &especialidadDe(const QString &nombre)
{
    for (const Especialidad &especialidad : especialidades)
        if (nombre == QString::fromUtf8(especialidad.nombre))
            return especialidad;
    return especialidades[0];
}

} // namespace clinical
