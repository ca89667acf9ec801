#include "core/windows/panSalida.h"

#include "core/session/screens.h"
#include "platform/forms/layout.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSalida::panSalida() : Form(u"panSalida"_s)
{
    setWindowTitle(u"Salir"_s);
    Command1.setDefault(true);
    setContents(this, Column{Label1, Check1, Row{Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this, &panSalida::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panSalida::load()
{
    setTag(u"NO"_s);
    const bool hayBackup = screens::has("panBackup");
    Check1.setEnabled(hayBackup);
    Check1.setChecked(hayBackup && settings::getSetting(u"Miscelaneas"_s, u"HacebackupAlSalir"_s) == u"SI");
}

void panSalida::aceptar()
{
    if (Check1.isEnabled())
        settings::saveSetting(u"Miscelaneas"_s, u"HacebackupAlSalir"_s,
                              Check1.isChecked() ? u"SI"_s : u"NO"_s);
    if (Check1.isChecked())
        screens::showModal("panBackup");
    answer(u"SI"_s);
}

#include "moc_panSalida.cpp"
