#include "practice/appointments/panEstadosTurnos.h"

#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largoDeEstado = 40; // of the column

} // namespace

panEstadosTurnos::panEstadosTurnos()
    : Tabla(u"panEstadosTurnos"_s, u"Estados de los turnos"_s, {{u"Estado"_s, u"Estado"_s, {}, 320}})
{
    setSource(u"Select * from EstadosTurnos order by Estado"_s);
    setContents(this,
                Column{Expanding(DBGrid1),
                       Row{command(u"Command1"_s, u"&Agregar..."_s, u"agregar"_s, [this] { agregar(); }),
                           deletes(u"Command2"_s, u"&Eliminar"_s,
                                   {.question = u"ATENCION: Desea eliminar éste registro?"_s}),
                           Stretch(), closes(u"Command3"_s, u"&Cerrar"_s)}});
    resize(430, 380);
}

void panEstadosTurnos::agregar()
{
    const auto nombre =
        inputBox(u"Escriba el nombre del nuevo estado :"_s, u"Nuevo estado"_s, {}, largoDeEstado);
    if (nombre && !nombre->trimmed().isEmpty())
        addRow([&](dao::Recordset &estados) { estados[u"Estado"] = *nombre; });
}

#include "moc_panEstadosTurnos.cpp"
