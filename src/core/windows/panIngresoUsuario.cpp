#include "core/windows/panIngresoUsuario.h"

#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/dao/error.h"
#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "platform/forms/twips.h"
#include "platform/settings/settings.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr double altoConTurnos = 4305; // twips

} // namespace

panIngresoUsuario::panIngresoUsuario() : Form(u"panIngresoUsuario"_s)
{
    setWindowTitle(u"Ingreso al sistema"_s);
    Text2.setSecret();
    Label3.setWordWrap(true);
    setForeColor(Label3, palette().color(QPalette::PlaceholderText));
    Frame1.hide();
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Usuario :"_s, Text1}, {u"&Clave de acceso :"_s, Text2}},
                          Group(Frame1, Fields{{u"&Fecha :"_s, dt1}, {u"&Profesional :"_s, Combo2}}),
                          Label3,
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(400);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panIngresoUsuario::load()
{
    if (settings::getSetting(u"Miscelaneas"_s, u"Modelo de uso Turnos"_s) != u"Por Usuario")
        return;
    Frame1.show();
    dt1.setValue(basic::today());
    basic::ignoring(dao::fileTrouble,
                    [this] { MODULE11::LlenaLista(Combo2, u"Select * from Profesionales"_s, u"Nombre"); });
    setMinimumHeight(static_cast<int>(toPixels(altoConTurnos)));
}

void panIngresoUsuario::activate()
{
    if (pideClave_)
        Text2.setFocus();
    else
        Text1.setFocus();
    pideClave_ = false;
}

void panIngresoUsuario::pedirClave()
{
    pideClave_ = true;
    Text2.selectAll();
}

/// From the name Enter goes on to the password.
void panIngresoUsuario::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && Text1.hasFocus() && !Text1.text().isEmpty() && Text2.text().isEmpty())
        Text2.setFocus();
    else
        Form::keyPressEvent(event);
}

#include "moc_panIngresoUsuario.cpp"
