#include "core/security/panNueUsuario.h"

#include "core/security/niveles.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueUsuario::panNueUsuario() : Form(u"panNueUsuario"_s)
{
    setWindowTitle(u"Nuevo Usuario del sistema"_s);
    for (TextBox *clave : {&Text2, &Text3})
        clave->setSecret();
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Nombre :"_s, Text1},
                                 {u"Ni&vel de acceso :"_s, Combo1},
                                 {u"&Tipo de usuario :"_s, Combo2},
                                 {u"C&lave de acceso :"_s, Text2},
                                 {u"&Repita la clave :"_s, Text3}},
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(420);
    connect(&Command1, &QPushButton::clicked, this, &panNueUsuario::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

/// Both combos start on their first entry: an account without a level would pass every gate.
void panNueUsuario::load()
{
    Combo1.addItems(MODULE11::entradasDeNivel());
    Combo2.addItems(MODULE11::tiposDeUsuario);
    for (ComboBox *combo : {&Combo1, &Combo2})
        combo->setCurrentIndex(0);
}

void panNueUsuario::activate()
{
    Text1.setFocus();
}

int panNueUsuario::nivel() const
{
    return MODULE11::nivelDeEntrada(Combo1.value());
}

QString panNueUsuario::tipo() const
{
    return Combo2.value().left(1);
}

/// The first field that cannot be accepted; null when all can.
TextBox *panNueUsuario::equivocado()
{
    if (nombre().isEmpty())
        return &Text1;
    if (clave().isEmpty())
        return &Text2;
    return clave() == Text3.text() ? nullptr : &Text3;
}

void panNueUsuario::aceptar()
{
    TextBox *campo = equivocado();
    if (!campo) {
        answer(u"SI"_s);
        return;
    }
    msgBox(
        u"Ingrese los datos correctamente, fíjese de colocar la clave de acceso correctamente en ambas casillas de texto"_s,
        Icon::Critical, u"Error"_s);
    markWrong(*campo, campo == &Text3 ? u"La clave, otra vez igual"_s : u"No puede faltar"_s);
}

#include "moc_panNueUsuario.cpp"
