#include "specialties/cardiology/panNueRegCardio.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueRegCardio::panNueRegCardio() : Form(u"panNueRegCardio"_s)
{
    setWindowTitle(u"Nuevo Registro Cardiológico"_s);
    Command1.setDefault(true);
    setContents(this, Column{Fields{{u"&Fecha :"_s, DTPicker1}}, Row{Stretch(), Command1, Command2}});
    setMinimumWidth(320);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_panNueRegCardio.cpp"
