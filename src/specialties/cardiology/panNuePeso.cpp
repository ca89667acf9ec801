#include "specialties/cardiology/panNuePeso.h"

#include "core/services/paciente.h"
#include "platform/basic/runtime.h"
#include "platform/dao/error.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "specialties/cardiology/pesos.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNuePeso::panNuePeso() : Form(u"panNuePeso"_s)
{
    setWindowTitle(u"Nueva medida"_s);
    lblAyuda.setCaption(
        u"Ingrese la fecha de medición y el peso correspondiente, si desea informar gramos, utilice la coma o el punto según configuración de su panel de control de Windows"_s);
    lblAyuda.setWordWrap(true);
    Command1.setDefault(true);
    setContents(this, Column{Fields{{u"&Fecha de medición :"_s, DTPicker1}, {u"&Medida en Kg. :"_s, Text1}},
                             lblAyuda, Row{Stretch(), Command1, Command2}});
    setMinimumWidth(420);
    connect(&Command1, &QPushButton::clicked, this, &panNuePeso::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNuePeso::aceptar()
{
    const auto paciente = services::numeroDePaciente(tag());
    const auto kilos = basic::toNumber(Text1.text());
    if (!paciente || !kilos || *kilos <= 0) {
        msgBox(!paciente ? u"Seleccione un paciente !!"_s
               : kilos   ? u"El peso debe ser mayor que cero !!"_s
                         : u"Ingrese valores numéricos !!"_s,
               Icon::Critical, u"Error"_s);
        Text1.setFocus();
        return;
    }
    try {
        pesos::agregar(*paciente, DTPicker1.value(), *kilos);
    } catch (const dao::Error &error) {
        msgBox(u"Se produjo el siguiente error : "_s + error.description(), Icon::Critical, u"Error"_s);
        return;
    }
    answer(u"SI"_s);
}

#include "moc_panNuePeso.cpp"
