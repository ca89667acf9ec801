#include "core/services/mensajes.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

mens::mens() : Form(u"mens"_s)
{
    setWindowTitle(u"Mensajes"_s);
    mensajero.setWordWrap(true);
    Command1.setDefault(true);
    setContents(this, Column{mensajero, Row{Stretch(), Command1}});
    connect(&Command1, &QPushButton::clicked, this, [this] { unload(); });
}

preg::preg() : Form(u"preg"_s)
{
    setWindowTitle(u"Pregunta"_s);
    pregun.setWordWrap(true);
    setContents(this, Column{pregun, Row{Stretch(), Command3d1, Command3d2}});
    connect(&Command3d1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command3d2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_mensajes.cpp"
