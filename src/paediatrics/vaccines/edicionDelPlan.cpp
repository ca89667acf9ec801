#include "paediatrics/vaccines/edicionDelPlan.h"

#include "core/records/filas.h"
#include "paediatrics/vaccines/pannueVac.h"
#include "paediatrics/vaccines/planilla.h"

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

FilaDelPlan leer(dao::Recordset &fila)
{
    FilaDelPlan datos{fila[u"Descripcion"].text(),
                      fila[u"detalle"].text(),
                      fila[u"Dosis"].text(),
                      fila[u"Vacuna"].text(),
                      fila[u"TemasRelacionados"].text(),
                      fila[u"orden"].integer(),
                      std::nullopt};
    const Edades edades;
    if (const EdadDeDosis *edad = edades.guardada(datos.vacuna, datos.dosis))
        datos.edad = *edad;
    return datos;
}

void escribir(dao::Recordset &fila, const FilaDelPlan &datos, int meses)
{
    fila[u"Descripcion"] = datos.descripcion;
    fila[u"detalle"] = datos.detalle;
    fila[u"Dosis"] = datos.dosis;
    fila[u"Vacuna"] = datos.vacuna;
    fila[u"orden"] = datos.orden;
    fila[u"TemasRelacionados"] = datos.temas;
    fila[u"Tiempo en meses"] = meses;
}

} // namespace

void agregarDosis(forms::Data &plan)
{
    pannueVac entrada;
    records::capture(plan, entrada, [&](dao::Recordset &filas) {
        const FilaDelPlan datos = entrada.fila();
        escribir(filas, datos, mesesAlAgregar(datos.dosis));
    });
    if (entrada.tag() == u"SI")
        guardarEdad(entrada.fila().vacuna, entrada.fila().dosis, entrada.fila().edad);
}

void editarDosis(forms::Data &plan)
{
    const FilaDelPlan antes = leer(plan.recordset());
    pannueVac entrada(antes);
    entrada.showModal();
    if (entrada.tag() != u"SI")
        return;
    const FilaDelPlan datos = entrada.fila();
    plan.change([&](dao::Recordset &filas) {
        filas.edit([&] { escribir(filas, datos, mesesAlEditar(datos.dosis)); });
    });
    guardarEdad(antes.vacuna, antes.dosis, std::nullopt);
    guardarEdad(datos.vacuna, datos.dosis, datos.edad);
    records::reread(plan);
}

} // namespace vacunas
