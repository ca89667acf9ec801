#include "clinical/laboratory/panNueAg.h"

#include "core/services/services.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueAg::panNueAg() : Form(u"panNueAg"_s)
{
    setWindowTitle(u"Nuevo estudio para agregar a su tabla"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Label1,
                          Fields{{u"&Estudio :"_s, Text1}},
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(460);
    Text1.setFocus();
    connect(&Command1, &QPushButton::clicked, this, &panNueAg::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueAg::aceptar()
{
    if (!nombre().isEmpty()) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Datos mal ingresados."_s);
    markWrong(Text1, u"Escriba el nombre del estudio"_s);
}

#include "moc_panNueAg.cpp"
