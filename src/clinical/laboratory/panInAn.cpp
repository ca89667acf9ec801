#include "clinical/laboratory/panInAn.h"

#include "clinical/laboratory/analisis.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panInAn::panInAn() : Form(u"panInAn"_s)
{
    setWindowTitle(u"Ingresa valor del Análisis"_s);
    QFont destacada = Label1.font();
    destacada.setBold(true);
    Label1.setFont(destacada);
    Command1.setDefault(true);
    Command2.setToolTip(u"Deja este estudio como está y pasa al siguiente"_s);
    Command3.setToolTip(u"Deja los estudios que faltan como están"_s);
    setContents(this, Column{
                          Row{Expanding(Label1), Label2},
                          Fields{{u"&Valor Obtenido :"_s, Text1}},
                          Row{Command3, Stretch(), Command1, Command2},
                      });
    setMinimumWidth(460);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, [this] { answer(u"FIN"_s); });
}

void panInAn::setEstudio(const QString &estudio, const QString &valor, int largo, const QString &lugar)
{
    Label1.setCaption(estudio);
    Label2.setCaption(lugar);
    if (largo > 0)
        Text1.setMaxLength(largo);
    Text1.setText(valor);
    Text1.setFocus();
    Text1.selectAll();
}

QString panInAn::valor() const
{
    const QString escrito = Text1.text().trimmed();
    return escrito.isEmpty() ? laboratorio::pendiente : escrito;
}

#include "moc_panInAn.cpp"
