#include "clinical/catalogues/eleccion.h"

#include "clinical/catalogues/panCIE10.h"
#include "clinical/catalogues/panDiagnosticos.h"
#include "clinical/catalogues/panSintomas.h"
#include "clinical/catalogues/panTratamientos.h"
#include "core/security/niveles.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;

using catalogos::Renglon;

namespace
{

/// The name that the window answered with the key of the list's row. Without a name there is no entry.
Renglon renglonDe(const records::Catalogo &catalogo)
{
    const std::vector<Renglon> elegidos = catalogo.elegidos();
    if (catalogo.tag().isEmpty() || elegidos.empty())
        return {catalogo.tag(), 0};
    return {catalogo.tag(), elegidos.front().id};
}

} // namespace

std::vector<Renglon> catalogos::eligeSintomas()
{
    panSintomas sintomas;
    sintomas.showModal();
    if (sintomas.tag() == u"NO")
        return {};
    return sintomas.elegidos();
}

Renglon catalogos::eligeTratamiento(const QString &paciente)
{
    panTratamientos tratamientos;
    tratamientos.setPaciente(paciente);
    tratamientos.showModal();
    return renglonDe(tratamientos);
}

std::optional<Renglon> catalogos::eligeEnCIE10(int nodo)
{
    if (!MODULE11::VerificaNivel(u"IngresarACie10"_s))
        return {};
    panCIE10 clasificacion;
    if (nodo > 0)
        clasificacion.setTag(QString::number(nodo));
    clasificacion.showModal();
    if (clasificacion.tag() == u"NO")
        return {};
    const auto id = basic::toNumber(clasificacion.idDiagnosticoCIE());
    if (!id) {
        forms::msgBox(u"Seleccione una enfermedad o patología de la última ramificación dentro del CIE10"_s,
                      forms::Icon::Critical, u"Error"_s);
        return {};
    }
    return Renglon{clasificacion.tag(), static_cast<qint64>(*id)};
}

std::optional<Renglon> catalogos::eligeDeLosPropios(const QString &clasificacion, const QString &titulo)
{
    panDiagnosticos diagnosticos;
    if (!titulo.isEmpty())
        diagnosticos.setWindowTitle(titulo);
    diagnosticos.setTag(clasificacion);
    diagnosticos.showModal();
    return renglonDe(diagnosticos);
}

namespace
{

QString clasificador()
{
    return settings::getSetting(u"Configuracion"_s, u"Clasificador patologico"_s);
}

} // namespace

std::optional<Renglon> catalogos::eligeDiagnostico()
{
    return clasificador() == u"CIE10" ? eligeEnCIE10() : eligeDeLosPropios();
}

/// With nothing set it is the classification here, and the practice's list for a visit's diagnosis.
std::optional<Renglon> catalogos::eligePatologia(const QString &titulo, int capitulo)
{
    return clasificador() == u"PERSONAL" ? eligeDeLosPropios({}, titulo) : eligeEnCIE10(capitulo);
}
