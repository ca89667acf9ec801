#include "paediatrics/control/panEscolar.h"

#include "core/services/paciente.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

panEscolar::panEscolar()
    : RenglonesDelPaciente(
          {.ventana = u"panEscolar"_s,
           .titulo = u"Escolaridad, Socialización y aprendizaje"_s,
           .tabla = u"SocioEscolar"_s,
           .columnaDePaciente = u"idPaciente"_s,
           .columnaDeNombre = u"Signo"_s,
           .rotulo = u"&Signo"_s,
           .sugerencias = {u"Adaptación a la escuela"_s, u"Asistencia"_s, u"Relación con los compañeros"_s,
                           u"Relación con los maestros"_s, u"Conducta en clase"_s, u"Atención"_s,
                           u"Lenguaje"_s, u"Lectura"_s, u"Escritura"_s, u"Cálculo"_s, u"Dibujo"_s,
                           u"Educación física"_s, u"Juego"_s},
           .columnas = {{u"Signo"_s, u"Signo"_s, {}, 320}, {u"Valor"_s, u"Valor"_s, {}, 200}}}),
      Combo2(u"Combo2"_s, {u"BIEN"_s, u"REGULAR"_s, u"MAL"_s}, true)
{
    Data1.bind(Combo2, u"Valor"_s);
    disponer(Fields{{u"&Valor :"_s, Combo2}}, {&Combo2});
}

void panEscolar::activate()
{
    if (!services::numeroDePaciente(tag())) {
        msgBox(u"No se localizó al paciente"_s, Icon::Critical, u"Error"_s);
        unload();
        return;
    }
    RenglonesDelPaciente::activate();
}

QString panEscolar::enPalabras(dao::Recordset &fila) const
{
    return fila[u"Signo"].text() + u" : "_s + fila[u"Valor"].text();
}

#include "moc_panEscolar.cpp"
