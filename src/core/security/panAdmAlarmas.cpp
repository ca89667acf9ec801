#include "core/security/panAdmAlarmas.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panAdmAlarmas::panAdmAlarmas() : Form(u"panAdmAlarmas"_s)
{
    setWindowTitle(u"Administrador de Alarmas"_s);
    for (CommandButton *boton : {&Command1, &Command2})
        boton->setEnabled(false);
    setContents(this, Row{Expanding(TreeView1), Column{Command1, Command2, Stretch()}});
    resize(480, 360);
}

#include "moc_panAdmAlarmas.cpp"
