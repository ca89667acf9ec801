#include "clinical/summary/comandos.h"

#include <QString>

namespace clinical
{

namespace
{

// clang-format off
constexpr Comando todos[] = {
    {"Command90", "Registrar Dosis", Lugar::Pediatria, "panPlanVacunas"},
    {"Command88", "Administrar plan de vacunación", Lugar::Pediatria, "panServices", Abre::Pagina, "Plan de Vacunación"},
    {"command15", "Alimentación", Lugar::Pediatria, "panAlimentacion"},
    {"command9", "Mad.Neurológica", Lugar::Pediatria, "panMadNeurol"},
    {"SsCommand4", "Agudeza Visual", Lugar::Pediatria, "panVisual"},
    {"command13", "Escolaridad", Lugar::Pediatria, "panEscolar"},
    {"command21", "Adolescencia", Lugar::Pediatria, "panAdole"},
    {"sscommand3", "Desarrollo y valores...", Lugar::Alergia, "hc"},
    {"label22", "Consultas...", Lugar::Oftalmologia, "panOft", Abre::Ventana, "", "", "Consultas de "},
    {"label30", "Fondo de ojos", Lugar::Oftalmologia, "panGraFondoX"},
    {"label31", "Biomicroscopia", Lugar::Oftalmologia, "panGraBioX"},
    {"label84", "Lectura", Lugar::Oftalmologia, "panOft", Abre::UltimaLectura},
    {"label29", "Odontograma", Lugar::Odontologia, "tooth"},
    {"label32", "Presupuestación...", Lugar::Odontologia, "tooth", Abre::Presupuestos},
    {"Label23", "Antecedentes", Lugar::Ginecologia, "panAnteGineco", Abre::Ventana, "", "", "", "alarmaAntecGineco", "GinecoAntecedentes"},
    {"Label54", "Exámenes...", Lugar::Ginecologia, "panGinecoExamen", Abre::Ventana, "", "", "", "alarmaExGineco", "GinecoExamen"},
    {"Label55", "Gestación...", Lugar::Ginecologia, "panGinecoGestas", Abre::Ventana, "", "", "", "alarmaGestacion", "GinecoGestacion"},
    {"Label56", "Especialidades ginecológicas...", Lugar::Ginecologia, "panGinecoOtros", Abre::Ventana, "", "", "", "Picture20", "GinecoEspecialidades"},
    {"Label77", "Vida Sexual...", Lugar::Ginecologia, "panVidaSexual", Abre::Ventana, "", "", "", "alarmaVidaSexual", "GinecoVidaSexual"},
    {"Label44", "Antecedentes", Lugar::Cardiologia, "panAnteCardio"},
    {"Label47", "Riesgo Cardíaco", Lugar::Cardiologia, "panTestCardio", Abre::Ventana, "", "", "", "Picture17", "RiesgoCardiaco"},
    {"Label50", "Tst Rsgo Quirúrgico", Lugar::Cardiologia, "panRiesgoOperatorio", Abre::Ventana, "", "", "", "Picture19", "RiesgoQuirurgico"},
    {"Label52", "Evaluac. Deportiva", Lugar::Cardiologia, "panEvalDeportiva", Abre::EvaluacionDeportiva, "", "", "", "Picture18", "EvalDeportiva"},
    {"Label87", "I.M.C.", Lugar::Cardiologia, "panIMC", Abre::Ventana, "", "", "", "Picture21", "Antropometria"},
    {"Label45", "Evolución", Lugar::Cardiologia, "panCardioPrin"},
    {"Label89", "RX de Torax...", Lugar::Cardiologia, "panCardioPrin", Abre::Ventana, "", "", "", "Picture8", "Rx de Torax"},
    {"Label26", "Tensión Arterial", Lugar::Cardiologia, "panTension", Abre::Ventana, "", "", "Percentilación de la tensión arterial de ", "Picture9", "ElectroCardioGrama"},
    {"Label64", "Captura Video", Lugar::Cardiologia, "pancapVideo"},
    {"Label24", "Doppler Cardiovascular", Lugar::Cardiologia, "panComplem", Abre::Examen, "Doppler Cardiovascular", "", "", "Picture14", "Doppler Cardiovascular"},
    {"Label91", "Holter...", Lugar::Cardiologia, "panComplem", Abre::Examen, "Holter", "", "", "Picture10", "Holter"},
    {"Label92", "Ecocardiograma...", Lugar::Cardiologia, "panComplem", Abre::Examen, "EcoCardiograma", "", "", "Picture12", "Ecocardiograma"},
    {"Label93", "Prueba de esfuerzo...", Lugar::Cardiologia, "panComplem", Abre::Examen, "Prueba de Esfuerzo", "", "", "Picture13", "Prueba de esfuerzo"},
    {"Label97", "Coronariografia...", Lugar::Cardiologia, "panComplem", Abre::Examen, "Coronariografía", "", "", "Picture11", "CoronarioGrafia"},
    {"Label98", "Perfusión Miocárdica", Lugar::Cardiologia, "panComplem", Abre::Examen, "Perfusión Miocárdica", "", "", "Picture15", "Perfusión Miocárdica"},
    {"label36", "Laboratorio", Lugar::Seguimiento, "panAnalisis", Abre::Hija, "", "IngresarALaboratorio", "", "Picture22", "Laboratorio"},
    {"label53", "Otros estudios", Lugar::Seguimiento, "panEstudios", Abre::Hija, "", "IngresarAEstudios", "", "Picture23", "Estudios Complementarios"},
    {"label39", "Antropometría", Lugar::Seguimiento, "panCrecimiento", Abre::Ventana, "", "", "", "Picture16", "Antropometria"},
    {"sscommand1", "Tensión Arterial", Lugar::Seguimiento, "panTension", Abre::Ventana, "", "", "Percentilación de la tensión arterial de ", "Picture24", "ElectroCardioGrama"},
    {"sscommand5", "Control de salud...", Lugar::Seguimiento, "panControlSano"},
    {"label58", "Apuntes multimedia", Lugar::Seguimiento, "panEHC", Abre::Hija},
    {"Command4", "Informes especiales", Lugar::Barra, ""},
    {"Command55", "Vademecum", Lugar::Barra, "panTratamientos"},
    {"Command_5", "Recursos de post-consulta", Lugar::Barra, "panAlgorritmos", Abre::Ventana, "", "IngresarABibliotecaRecursos"},
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
