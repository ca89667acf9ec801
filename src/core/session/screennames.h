#pragma once

#include <QString>

#include <optional>
#include <string_view>

/// The names under which subsystems open each other's windows and commands. A name outside these tables does
/// not compile.
namespace screens
{

// clang-format off
inline constexpr std::string_view windows[] = {
    "acerca",
    "asistente",
    "hc",
    "pan_Recetario",
    "panAdole",
    "panAdmAlarmas",
    "panAlgorritmos",
    "panAlimentacion",
    "panAnalisis",
    "panArbol",
    "panArticulos",
    "panBackup",
    "panCaja",
    "panCalVacunas",
    "panCalRiesgoGesta",
    "panCardioPrin",
    "panCIE10",
    "panControlSano",
    "panCrecimiento",
    "panCurvasOMS",
    "panDiagnosticos",
    "panDiario",
    "panEditHC",
    "panEditorMMedia",
    "panEHC",
    "panErrorB",
    "panErrorBase",
    "panEscolar",
    "panEstadisticas",
    "panEstDeta",
    "panEstadTurnos",
    "panGraficos",
    "panPrevalencias",
    "panEstadosTurnos",
    "panEstadPaciente",
    "panEstudios",
    "panEvalDeportiva",
    "panEvalEvolFisica",
    "panFacturacion",
    "panfichaPer",
    "panGArchivos",
    "panGinecoExamen",
    "panGinecoOtros",
    "panImagenes",
    "panGraFondoX",
    "panGraBioX",
    "panGraMed",
    "panIMC",
    "panImportAfiliados",
    "panInformes",
    "panInfTurnos",
    "panMuesCurvas",
    "panMadNeurol",
    "panNiveles",
    "panObras",
    "panOft",
    "panPercenPeso",
    "panPerPcNenas",
    "panperPCNinos",
    "panPerPesoNenas",
    "panPerPesoNenas6",
    "panPerPesoninos6",
    "panPersonaliza",
    "panPerTallaNenas",
    "panPerTallaNenas6",
    "panPerTallaNinos",
    "panPerTallaNinos6",
    "panPerTodoNenas",
    "panPerTodoNenes",
    "panPlanVacunas",
    "panPrestaciones",
    "panProfesionales",
    "panProtBase",
    "panRestaurar",
    "panRiesgoOperatorio",
    "panServices",
    "panSintomas",
    "panTension",
    "panTestCardio",
    "panTratamientos",
    "panTurnos",
    "panUsuarios",
    "panVacunasAtrasadas",
    "panVidaSexual",
    "panVisitas",
    "panVisual",
    "panAntPerinatales",
    "panAnteCardio",
    "panAnteGineco",
    "panComplem",
    "panGinecoGestas",
    "panGinecoMamas",
    "panGinecoObs2",
    "panGinecoObs1",
    "panObtFoto",
    "panResPerinat",
    "pancapVideo",
    "tooth",
};
// clang-format on

/// Commands that are no window of their own.
inline constexpr std::string_view operations[] = {
    "AbreFicha", "AbrePerinatal", "BorraFicha", "NuevaFicha", "TablaDiagnosticos",
};

template <class Table>
constexpr bool contains(const Table &table, std::string_view name)
{
    for (const std::string_view known : table)
        if (known == name)
            return true;
    return false;
}

/// One of the names of `table`, checked where it is written.
template <const auto &table>
class Name
{
public:
    consteval Name(const char *name) : name_(name)
    {
        if (!contains(table, name_))
            throw "no such screen";
    }
    /// A name that data holds; nothing when the table has none such.
    static std::optional<Name> find(QStringView name)
    {
        for (const std::string_view known : table)
            if (name == QLatin1String(known.data(), static_cast<qsizetype>(known.size())))
                return Name(known);
        return std::nullopt;
    }
    QString text() const { return QString::fromLatin1(name_.data(), static_cast<qsizetype>(name_.size())); }

private:
    explicit Name(std::string_view known) : name_(known) {}
    std::string_view name_;
};

using Window = Name<windows>;
using Command = Name<operations>;

} // namespace screens
