#include "clinical/register.h"

#include "clinical/catalogues/eleccion.h"
#include "clinical/catalogues/panCIE10.h"
#include "clinical/catalogues/panDiagnosticos.h"
#include "clinical/catalogues/panSintomas.h"
#include "clinical/catalogues/panTratamientos.h"
#include "clinical/family/panArbol.h"
#include "clinical/history/panEditHC.h"
#include "clinical/laboratory/panAnalisis.h"
#include "clinical/laboratory/panComplem.h"
#include "clinical/laboratory/panEstudios.h"
#include "clinical/patients/buscaPaciente.h"
#include "clinical/patients/eligePaciente.h"
#include "clinical/patients/fichas.h"
#include "clinical/patients/filaDePaciente.h"
#include "clinical/patients/hc.h"
#include "clinical/summary/panEstadPaciente.h"
#include "clinical/visits/controlDeSalud.h"
#include "clinical/visits/nuevaConsulta.h"
#include "clinical/visits/panVisitas.h"
#include "core/session/ports.h"
#include "core/session/screens.h"

using namespace Qt::StringLiterals;

namespace
{

void TablaDiagnosticos()
{
    panDiagnosticos diagnosticos;
    diagnosticos.soloMantenimiento();
    diagnosticos.showModal();
}

std::optional<qint64> capturaConsulta(qint64 paciente)
{
    const auto registrada = consultas::capturaYRegistra(QString::number(paciente));
    if (!registrada)
        return std::nullopt;
    consultas::avisaExamenSinGuardar(*registrada);
    return registrada->idConsulta;
}

} // namespace

void clinical::registerScreens()
{
    screens::add<panEditHC>("panEditHC");
    screens::add<hc>("hc");
    screens::add<panArbol>("panArbol");
    screens::add<panVisitas>("panVisitas");
    screens::add<panEstadPaciente>("panEstadPaciente");
    screens::add<panAnalisis>("panAnalisis");
    screens::add<panEstudios>("panEstudios");
    screens::add<panComplem>("panComplem");
    screens::add<panSintomas>("panSintomas");
    screens::add<panDiagnosticos>("panDiagnosticos");
    screens::add<panTratamientos>("panTratamientos");
    screens::add<panCIE10>("panCIE10");
    screens::addOperation("TablaDiagnosticos", TablaDiagnosticos);
    screens::addOperation("NuevaFicha", NuevaFicha);
    screens::addOperation("AbreFicha", AbreFicha);
    screens::addOperation("BorraFicha", BorraFicha);
    ports::eligePaciente.provide(EligePaciente);
    ports::buscaEnPacientes.provide(BuscaEnPacientes);
    ports::pideNombreDePaciente.provide(PideNombreDePaciente);
    ports::abreFicha.provide(AbreFichaDe);
    ports::registraConsulta.provide(capturaConsulta);
    ports::abreComplemento.provide(complementos::abrir);
    ports::eligeDiagnostico.provide(catalogos::eligeDiagnostico);
    ports::eligePatologia.provide(catalogos::eligePatologia);
    ports::eligeTratamiento.provide(catalogos::eligeTratamiento);
    ports::editaCondicionFamiliar.provide(editaCondicionFamiliar);
    ports::registraControlDeSalud.provide(consultas::registrarControlDeSalud);
}
