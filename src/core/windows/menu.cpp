#include "core/windows/menu.h"

#include "core/session/screennames.h"

namespace menu
{

namespace
{

using enum Kind;

constexpr const char *abrirFicha = "Debe abrir una ficha de un paciente.";
constexpr const char *seleccionar = "Debe seleccionar un paciente";
constexpr const char *abrirAntes = "Debe abrir una ficha de un paciente antes.";
constexpr const char *abrirDelPaciente = "Debe abrir una ficha del paciente.";

// clang-format off
constexpr Entry entries[] = {
    {0, "&Archivos", "", Folder},
    {1, "Nuevo Paciente", "menuNuevaFicha", Operation, "NuevaFicha", "AgregarPacientes", "", "", 0, "Ctrl+N"},
    {1, "Borrar Paciente", "menuBorraFicha", Operation, "BorraFicha", "BorrarPacientes"},
    {1, "Abrir Ficha de un paciente", "menuAbreFicha", Operation, "AbreFicha", "IngresarAPacientes", "", "", 0, "Ctrl+O"},
    {1, "", "", Separator},
    {1, "Importar datos de afiliados", "menuArchImport", Modal, "panImportAfiliados"},
    {1, "Gestión consultorio", "menuConsultorio", Child, "panDiario", "IngresarAConsultas"},
    {1, "Gestión turnos", "menuTurnos", Child, "panTurnos", "IngresarATurnos", "", "", 0, "Ctrl+T"},
    {1, "Gestion contable personal", "menuCaja", Modal, "panCaja"},
    {1, "Tablas varias", "", Folder},
    {2, "Sintomas del paciente", "menuSintomas", Modal, "panSintomas"},
    {2, "Patologías y Diagnosticos", "menuDiagnostico", Operation, "TablaDiagnosticos"},
    {2, "Tratamientos", "MenuTratamientos", Modal, "panTratamientos"},
    {2, "Tabla de Profesionales", "menuTablaProf", Modal, "panProfesionales", "IngresarAProfesionales"},
    {2, "Empresas de Cobertura Médica", "menuObras", Modal, "panObras"},
    {2, "Tabla Nomencladora de prestaciones", "menuArchNomencla", Modal, "panPrestaciones"},
    {2, "Estados Turnos", "menuArcEstadosTurnos", Modal, "panEstadosTurnos"},
    {1, "", "", Separator},
    {1, "Salir", "menuFin", Exit},

    {0, "&Paciente", "", Folder},
    {1, "Neonatologia", "", Folder},
    {2, "Antecedentes Perinatales", "", Folder},
    {3, "Datos maternos", "menuPacAnteDatosMaternos", PatientOperation, "AbrePerinatal", "", abrirAntes},
    {3, "Parto", "menuPacAnteEmbarazo", PatientOperation, "AbrePerinatal", "", abrirDelPaciente, "", 1},
    {3, "Recien nacido", "menuPacAnteNacimiento", PatientOperation, "AbrePerinatal", "", abrirFicha, "", 2},
    {3, "Examen físico inmediato", "menuPacAnteExamenInmediato", PatientOperation, "AbrePerinatal", "", abrirFicha, "", 3},
    {1, "Pediatría", "", Folder},
    {2, "Crecimiento y Desarrollo", "", Folder},
    {3, "Antropometría", "menuPacCrecimAntropometria", PatientModal, "panCrecimiento", "", abrirFicha, "Crecimiento y desarrollo de "},
    {3, "Control de maduración neurológica", "menuPacCreceControlNeuro", PatientModal, "panMadNeurol", "", abrirFicha},
    {3, "Evaluación de maduración física", "menuPacCreceMaduraFisica", PatientModal, "panEvalEvolFisica", "", abrirFicha},
    {2, "Control de Salud", "menuPedCtrlSalud", ModalWithTag, "panControlSano"},
    {2, "Alimentación", "menuPedAlimentacion", ModalWithTag, "panAlimentacion"},
    {2, "Escolaridad y Aprendizaje", "menuPacEscolyAprend", ModalWithTag, "panEscolar"},
    {2, "Adolescencia", "menuPacAdole", PatientModal, "panAdole", "", seleccionar},
    {2, "Inmunización", "menuPacInmuniza", PatientModal, "panPlanVacunas", "", abrirFicha},
    {2, "Tensión Arterial", "menuPedTension", PatientModal, "panTension", "", abrirFicha},
    {2, "Agudeza Visual", "menuPacAgudeza", PatientModal, "panVisual", "", seleccionar},
    {1, "Antecedentes Familiares", "menuPacAntecedeFliares", PatientModal, "panArbol", "", abrirAntes, "Antecedentes Familiares"},
    {1, "Inmunología y Alergia", "menuPacAlergias", PatientModal, "hc", "", seleccionar},
    {1, "Oftalmología", "", Folder},
    {2, "Registro de Consulta", "menuOftalmologíaGeneral", PatientModal, "panOft", "", abrirFicha, "Oftalmología"},
    {2, "Refracción", "MenuOftRefraccion", Nothing},
    {2, "Fondo de Ojos", "menuOftFondo", Nothing},
    {2, "Biomicroscopía", "menuOftBio", Nothing},
    {2, "Estrabismo", "menuOftEstrabismo", Nothing},
    {2, "Receta de anteojos", "menuOftReceta", Nothing},
    {1, "Cardiología", "", Folder},
    {2, "Registro de Consulta", "menuCardioRegConsulta", PatientModal, "panCardioPrin", "", abrirFicha},
    {2, "Tensión Arterial", "menuCardioTension", PatientModal, "panTension", "", abrirFicha},
    {2, "I.M.C.", "menuCardioIMC", PatientModal, "panIMC", "", abrirFicha},
    {2, "Evaluación del Riesgo Cardiaco", "menuCardioRiesgoCardio", PatientModal, "panTestCardio", "", abrirFicha},
    {2, "Evaluación del Riesgo Quirúrgico", "menuCardioRiesgoQui", PatientModal, "panRiesgoOperatorio", "", abrirFicha},
    {2, "Evaluación del Riesgo Deportivo", "menuCardioEvalDepo", ModalWithTag, "panEvalDeportiva"},
    {1, "Odontología", "menuOdontologia", PatientModal, "tooth", "", abrirFicha},
    {1, "Ginecología y Obstetricia", "", Folder},
    {2, "Especialidades Ginecológicas", "menuGinecoEspGineco", ModalWithTag, "panGinecoOtros"},
    {2, "Evolución de estudios / Exámenes", "menuGinecoEvol", PatientModal, "panGinecoExamen", "", abrirFicha},
    {2, "Adolescencia", "MenuGinecoAdolescencia", PatientModal, "panAdole", "", seleccionar},
    {2, "Vida Sexual", "menuGinecoVidaSexual", PatientModal, "panVidaSexual", "", seleccionar},
    {2, "Tensión Arterial", "menuGinecoTension", PatientModal, "panTension", "", abrirFicha},
    {2, "Inmunizaciones", "menuGinecoInmuno", PatientModal, "panPlanVacunas", "", abrirFicha},
    {1, "", "", Separator},
    {1, "Historia clínica (textual)", "menuPacHCTexto", PatientChild, "panEditHC", "", abrirFicha},
    {1, "Historia clínica cronológica (Exámenes Clínicos)", "menuPacHistoriaClinDet", PatientChild, "panVisitas", "", abrirFicha},
    {1, "Ficha resumen del paciente", "menuPacFichaRes", PatientChild, "panEstadPaciente", "", abrirFicha},
    {1, "Apuntes Multimedia", "menuHCMulti", PatientOrNothing, "panEHC"},
    {1, "", "", Separator},
    {1, "Pedidos de Laboratorio al paciente", "menuPacPedLaboratorio", PatientChild, "panAnalisis", "", abrirFicha},
    {1, "Pedidos de Estudios especiales al paciente", "menuPacPedEstudiosEsp", PatientChild, "panEstudios", "", abrirFicha},

    {0, "&Misceláneas", "", Folder},
    {1, "Recetario", "menuRecetario", NewChild, "pan_Recetario", "IngresarARecetario"},
    {1, "Banco de Imágenes", "menuImagenes", NewChild, "panImagenes", "IngresarABibliotecaRecursos"},
    {1, "Biblioteca de Recursos", "menuOrganizaRecursos", Modal, "panAlgorritmos", "IngresarABibliotecaRecursos"},
    {1, "Misceláneas Pediátricas", "", Folder},
    {2, "Tablas de maduración neurológica", "menuMiscEvoMadu", Modal, "panMadNeurol"},
    {2, "Instrucciones para el cuidado del niño", "", Folder},
    {3, "Cuidados del bebé (folleto para las madres)", "menuCuidadosRecienNacido", NewChild, "panEditorMMedia"},
    {3, "Lactancia del bebé (folleto para las madres)", "menuCuidadosLactancia", NewChild, "panEditorMMedia"},
    {3, "Instructivo para la dieta astringente", "menuMisDietaAstringente", NewChild, "panEditorMMedia"},
    {3, "Instructivo para la preparación de agua de Avena (constipación)", "menuMiscConstipa", NewChild, "panEditorMMedia"},
    {3, "Primeras comidas del bebé", "menuPrimerasComidas", NewChild, "panEditorMMedia"},
    {2, "Prevención Infantil (recomendaciones)", "menuMiscPrevencion", Document, "ayuda\\prevencion infantil.hlp"},
    {2, "Fichas Perinatales", "menuFiPer", Modal, "panfichaPer"},
    {1, "Miscelaneas Cardiología", "", Folder},
    {2, "Evaluación deportiva", "menuEvalDepor", ModalWithTag, "panEvalDeportiva"},
    {2, "Evaluación de Riesgo Cardíaco", "menuEvalRiesgoCardio", Modal, "panTestCardio"},
    {2, "Test Riesgo Operatorio", "menuTestRiesOpe", Modal, "panRiesgoOperatorio"},
    {1, "Miscelaneas Ginecológicas", "", Folder},
    {2, "Calculadora de riesgo gestacional", "menuMisCalGes", ModalWithTag, "panCalRiesgoGesta"},

    {0, "&Servicios", "", Folder},
    {1, "Block de Notas", "menu_Block", NotePad},
    {1, "Calculadora", "menu_Calculadora", Calculator},
    {1, "Explorador de Archivos", "menu_Administrador", FileExplorer},
    {1, "Editor de textos", "menuServEditorTxt", NewChild, "panEditorMMedia"},
    {1, "", "", Separator},
    {1, "Articulos y control de stock", "menuarticulos", Modal, "panArticulos", "IngresarAFarmacia"},
    {1, "Facturación a Obras Sociales", "menuFacObra", Modal, "panFacturacion", "IngresarAFacturacion"},
    {1, "", "", Separator},
    {1, "Editor de Archivos del sistema", "menuEditArchivo", NewChild, "panGArchivos", "IngresarAEditorTextos"},
    {1, "Service y Mantenimiento del Sistema", "Menu_Service", Modal, "panServices", "IngresarAServicesSistema"},
    {1, "Restaurar una copia de seguridad", "menuRestaurar", Modal, "panRestaurar", "IngresarAServicesSistema"},
    {1, "Personalizar Sistema", "menuMiscPersonal", Modal, "panPersonaliza"},
    {1, "Usuarios y Seguridad", "", Folder},
    {2, "Usuarios del Sistema", "menuUsuariosSistema", Modal, "panUsuarios", "IngresarAControlAcceso"},
    {2, "Niveles de Acceso", "menuNivelesAcceso", Modal, "panNiveles", "IngresarAControlAcceso"},
    {2, "Asignar Contraseña a la Base de datos", "menuProtBase", Modal, "panProtBase", "IngresarAControlAcceso"},

    {0, "&Ventana", "", Folder},
    {1, "Organizar en Cascada", "menuCascada", Cascade},
    {1, "Organizar en mosaico", "menuMosaico", Tile},

    {0, "A&yuda", "", Folder},
    {1, "Uso del Sistema", "menu_UsoDelSistema", HelpKey, "", "", "", "", 0, "F1"},
    {1, "Asistente ...", "menuAyudaAsiste", Modal, "asistente"},
    {1, "Torvendo! en Internet...", "menuAyuActa", Web, "Sitio en Internet"},
    {1, "Páginas de interes pediátrico en Internet...", "menuPaginas", Web, "Paginas de interes"},
    {1, "", "", Separator},
    {1, "Acerca de ...", "menu_AcercaDe", Modal, "acerca"},
};

constexpr Button buttons[] = {
    {"Nuevo", "nuevo", Operation, "NuevaFicha", "AgregarPacientes"},
    {"Abrir", "abrir", Operation, "AbreFicha", "IngresarAPacientes"},
    {"Consultorio", "consultorio", ChildMaximised, "panDiario", "IngresarAConsultas"},
    {"Turnos", "turnos", ChildMaximised, "panTurnos", "IngresarATurnos"},
    {"Estadísticas", "estadisticas", Modal, "panEstadisticas", "ConsultarEstadistica"},
    {"Informes", "informes", Modal, "panInformes", "IngresarAInformes"},
    {"Configurar", "configurar", Modal, "panServices", "IngresarAServicesSistema"},
    {"CIE 10", "cie10", Modal, "panCIE10", "IngresarACie10"},
    {"Ayuda", "ayuda", Document, "manual.pdf", ""},
    {"Salir", "salir", ExitDialogue, "", ""},
    {"Profesionales", "profesionales", Modal, "panProfesionales", "IngresarAProfesionales"},
};
// clang-format on

/// A window or a command that no subsystem can ever register is a slip of the pen in this file.
template <class Item>
constexpr bool leadsSomewhere(const Item &item)
{
    switch (item.kind) {
    case Child:
    case NewChild:
    case ChildMaximised:
    case Modal:
    case ModalWithTag:
    case PatientModal:
    case PatientChild:
    case PatientOrNothing:
        return screens::contains(screens::windows, item.target);
    case Operation:
    case PatientOperation:
        return screens::contains(screens::operations, item.target);
    default:
        return true;
    }
}

template <class Table>
constexpr bool allLeadSomewhere(const Table &items)
{
    for (const auto &item : items)
        if (!leadsSomewhere(item))
            return false;
    return true;
}
static_assert(allLeadSomewhere(entries) && allLeadSomewhere(buttons));

} // namespace

std::span<const Entry> tree()
{
    return entries;
}

std::span<const Button> toolbar()
{
    return buttons;
}

} // namespace menu
