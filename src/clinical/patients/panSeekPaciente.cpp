#include "clinical/patients/panSeekPaciente.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSeekPaciente::panSeekPaciente() : Form(u"panSeekPaciente"_s)
{
    setWindowTitle(u"Buscar Paciente"_s);
    Command1.setDefault(true);
    setContents(this, Column{Label1, Text1, Row{Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_panSeekPaciente.cpp"
