#include "practice/appointments/panCambiaEstadoTurno.h"

#include "core/services/services.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

panCambiaEstadoTurno::panCambiaEstadoTurno() : Form(u"panCambiaEstadoTurno"_s)
{
    setWindowTitle(u"Cambiar estado de un turno"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Nuevo estado:"_s, Combo3}},
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(400, 130);
    connect(&Command1, &QPushButton::clicked, this, &panCambiaEstadoTurno::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panCambiaEstadoTurno::load()
{
    MODULE11::LlenaLista(Combo3, u"Select * from EstadosTurnos order by Estado"_s, u"Estado");
    Combo3.setCurrentIndex(-1);
}

void panCambiaEstadoTurno::aceptar()
{
    if (Combo3.currentIndex() < 0) {
        msgBox(u"Seleccione un nuevo estado."_s, Icon::Critical, u"Error"_s);
        markWrong(Combo3, u"Un estado de la lista"_s);
        return;
    }
    answer(u"SI"_s);
}

#include "moc_panCambiaEstadoTurno.cpp"
