#include "paediatrics/vaccines/panCalVacunas.h"

#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "paediatrics/vaccines/calendarios.h"
#include "paediatrics/vaccines/edicionDelPlan.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

panCalVacunas::panCalVacunas()
    : Tabla(u"panCalVacunas"_s, u"Plan de Vacunación"_s,
            {{u"Orden"_s, u"orden"_s, {}, 60},
             {u"Nombre"_s, u"Descripcion"_s, {}, 150},
             {u"Detalles"_s, u"detalle"_s, {}, 280},
             {u"Período"_s, u"Dosis"_s, {}, 130},
             {u"Código"_s, u"Vacuna"_s, {}, 120},
             {u"Meses"_s, u"Tiempo en meses"_s, {}, 60}})
{
    for (const vacunas::Calendario &calendario : vacunas::calendarios())
        Combo1.addItem(
            u"%1: %2"_s.arg(QString::fromUtf8(calendario.pais), QString::fromUtf8(calendario.nombre)));
    Combo1.setCurrentIndex(0);
    setContents(this,
                Column{
                    Expanding(DBGrid1),
                    Row{command(u"Command1"_s, u"&Agregar..."_s, u"agregar"_s,
                                [this] { vacunas::agregarDosis(Data1); }),
                        rowCommand(u"Command2"_s, u"&Editar..."_s, u"editar"_s,
                                   [this] { vacunas::editarDosis(Data1); }),
                        rowCommand(u"Command3"_s, u"&Quitar"_s, u"borrar"_s, [this] { quitar(); }), Stretch(),
                        command(u"Command5"_s, u"&Niños atrasados..."_s, u"ver"_s,
                                [] { screens::showModal("panVacunasAtrasadas"); }),
                        closes(u"Command6"_s, u"&Cerrar"_s)},
                    Group(u"Calendarios nacionales"_s,
                          Row{Expanding(Combo1), command(u"Command4"_s, u"Car&gar calendario..."_s,
                                                         u"abrir"_s, [this] { cargar(); })}),
                });
    resize(900, 560);
    setSource(u"select * from CalVacunas order by orden"_s);
}

void panCalVacunas::quitar()
{
    if (askBox(u"Elimina este registro de la lista ??"_s, u"Atencion !!"_s, Answer::No))
        deleteRow();
}

/// The plan is every workstation's: nothing of it changes without a yes.
void panCalVacunas::cargar()
{
    const vacunas::Calendario &calendario =
        vacunas::calendarios()[static_cast<std::size_t>(Combo1.currentIndex())];
    const auto dosis = vacunas::leerCalendario(calendario).size();
    if (!MODULE11::PreguntaSiBorra(
            u"Reemplaza el plan del consultorio por el de %1 (%2 dosis)? "
            u"Las dosis registradas de los pacientes no se tocan."_s.arg(QString::fromUtf8(calendario.pais))
                .arg(dosis)))
        return;
    vacunas::cargarCalendario(calendario);
    refresh();
}

#include "moc_panCalVacunas.cpp"
