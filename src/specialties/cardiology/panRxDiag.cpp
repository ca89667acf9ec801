#include "specialties/cardiology/panRxDiag.h"

#include "core/services/paciente.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "specialties/drawing/hoja.h"

using namespace Qt::StringLiterals;
using namespace forms;

panRxDiag::panRxDiag() : Form(u"panRxDiag"_s)
{
    setWindowTitle(u"Diagrama Gráfico Rx"_s);
    setContents(this, Column{Expanding(dibujo_.disponer()), Row{Command1, Command3, Stretch(), Command2}});
    resize(640, 620);
    connect(&Command1, &QPushButton::clicked, this, &panRxDiag::guardar);
    connect(&Command3, &QPushButton::clicked, this, &panRxDiag::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panRxDiag::unload);
}

/// What is being drawn is not read over when another window gives the way back.
void panRxDiag::activate()
{
    for (CommandButton *boton : {&Command1, &Command3})
        boton->setEnabled(!tag().isEmpty());
    if (leido_ || tag().isEmpty())
        return;
    leido_ = true;
    dibujo_.mostrar(torax::leer(basic::programFile(tag())));
}

void panRxDiag::guardar()
{
    torax::guardar(basic::programFile(tag()), dibujo_.elementos());
    dibujo_.guardado();
}

void panRxDiag::imprimir()
{
    dibujo::imprimir(dibujo_, windowTitle(),
                     services::nombreDePaciente(QString::number(torax::pacienteDe(tag()))));
}

bool panRxDiag::queryUnload()
{
    if (tag().isEmpty() || !dibujo_.cambiado())
        return true;
    const auto guarda =
        askOrCancelBox(u"El diagrama tiene cambios sin guardar. Los guarda ?"_s, u"Atención"_s);
    if (!guarda)
        return false;
    if (*guarda)
        guardar();
    return true;
}

#include "moc_panRxDiag.cpp"
