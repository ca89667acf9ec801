#include "specialties/cardiology/panListaPeso.h"

#include "specialties/cardiology/panNuePeso.h"

using namespace Qt::StringLiterals;
using namespace forms;

panListaPeso::panListaPeso()
    : ListaDelPaciente(u"panListaPeso"_s, u"Evolución del peso"_s,
                       {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 100},
                        {u"Peso (g)"_s, u"Peso"_s, {}, 90},
                        {u"Talla (cm)"_s, u"Talla"_s, {}, 90},
                        {u"P. cefálico (cm)"_s, u"Pc"_s, {}, 120}},
                       u"Select * from Medidas where Paciente = %1 order by fecha"_s)
{
    setContents(this,
                Column{Expanding(DBGrid1),
                       Row{command(u"Command2"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
                           deletes(u"Command1"_s, u"&Borrar"_s, {.question = u"Borra este registro ??"_s}),
                           Stretch(), closes(u"Command3"_s, u"&Cerrar"_s)}});
    resize(500, 380);
}

void panListaPeso::nuevo()
{
    panNuePeso ventana;
    ventana.setTag(tag());
    ventana.showModal();
    if (ventana.tag() == u"SI")
        reread();
}

#include "moc_panListaPeso.cpp"
