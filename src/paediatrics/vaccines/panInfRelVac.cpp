#include "paediatrics/vaccines/panInfRelVac.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panInfRelVac::panInfRelVac(const QString &texto) : Form(u"panInfRelVac"_s)
{
    setWindowTitle(u"Información Relacionada"_s);
    Text1.setPlainText(texto);
    Text1.setReadOnly(true);
    Text1.setAccessibleName(windowTitle());
    setContents(this, Column{Expanding(Text1), Row{Stretch(), Command1}});
    resize(480, 260);
    connect(&Command1, &QPushButton::clicked, this, &panInfRelVac::unload);
}

#include "moc_panInfRelVac.cpp"
