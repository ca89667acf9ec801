#include "paediatrics/anthropometry/panCrecimiento.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "paediatrics/anthropometry/medidas.h"

using namespace Qt::StringLiterals;
using namespace forms;

panCrecimiento::panCrecimiento()
    : ListaDelPaciente(u"panCrecimiento"_s, u"Pantalla de Crecimiento / Desarrollo y Antropometría"_s,
                       {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 130},
                        {u"Peso"_s, u"Peso"_s, {}, 120},
                        {u"Talla"_s, u"Talla"_s, {}, 120},
                        {u"Pc"_s, u"Pc"_s, {}, 120}},
                       u"select * from medidas where paciente = %1 order by fecha"_s)
{
    const auto tomar = [this] {
        if (paediatrics::TomarMedidas(paciente()))
            refresh();
    };
    setContents(
        this,
        Column{Label1, Expanding(DBGrid1),
               Row{command(u"Command2"_s, u"&Tomar medidas"_s, u"medidas"_s, tomar),
                   deletes(u"Command8"_s, u"&Borrar"_s, {.question = u"Borra este registro de medidas??"_s}),
                   command(u"Command10"_s, u"C&urvas de crecimiento"_s, u"curvas"_s, [this] { verCurvas(); }),
                   Stretch(), closes(u"Command1"_s, u"&Cerrar"_s)}});
    resize(620, 420);
    MODULE11::MuestraAyudante(
        u"Para agregar mediciones realizadaas al paciente, presione el botón \"Tomar medidas\".  En \"Curvas de crecimiento, obtendrá graficas de evolución del paciente."_s);
}

void panCrecimiento::verCurvas()
{
    if (services::paciente(paciente()))
        screens::showModal("panMuesCurvas", tag());
}

#include "moc_panCrecimiento.cpp"
