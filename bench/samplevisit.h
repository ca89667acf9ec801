#pragma once

#include "clinical/visits/consulta.h"
#include "clinical/visits/examen.h"
#include "platform/basic/environment.h"

namespace bench
{

/// A visit with every item of its examination.
inline consultas::Visita sampleVisit()
{
    using namespace Qt::StringLiterals;
    consultas::Visita visit;
    visit.fecha = basic::today();
    visit.hora = u"10:00"_s;
    visit.motivo = u"Banco de pruebas"_s;
    visit.renglones[consultas::Sintomas] = {{u"Fiebre"_s, 1}, {u"Tos"_s, 3}};
    visit.renglones[consultas::Tratamientos] = {{u"Paracetamol"_s, 1}, {u"Amoxicilina"_s, 4}};
    visit.renglones[consultas::Diagnosticos] = {{u"Otitis media aguda"_s, 12}};
    for (const examen::Item &item : examen::items())
        visit.examen.push_back({QString::fromUtf8(item.titulo), u"Sin particularidades"_s});
    return visit;
}

} // namespace bench
