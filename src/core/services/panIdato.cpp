#include "core/services/panIdato.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panIdato::panIdato() : Form(u"panIdato"_s)
{
    setWindowTitle(u"Ingreso de dato"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{Label1, Text1}, {Label2, Combo1}},
                          Row{Stretch(), Command1, Command2},
                      });
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_panIdato.cpp"
