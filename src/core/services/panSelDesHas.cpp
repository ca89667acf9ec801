#include "core/services/panSelDesHas.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSelDesHas::panSelDesHas(const QString &texto) : Form(u"panSelDesHas"_s)
{
    setWindowTitle(u"Seleccionar rango de configuración de fechas"_s);
    Label3.setCaption(texto);
    Command1.setDefault(true);
    setContents(this, Column{
                          Label3,
                          Fields{{u"&Desde :"_s, dt1}, {u"&Hasta :"_s, dt2}},
                          Row{Stretch(), Command1, Command2},
                      });
    connect(&Command1, &QPushButton::clicked, this, &panSelDesHas::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panSelDesHas::aceptar()
{
    if (desde() < hasta())
        answer(u"SI"_s);
}

#include "moc_panSelDesHas.cpp"
