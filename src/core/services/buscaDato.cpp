#include "core/services/buscaDato.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

buscaDato::buscaDato() : Form(u"buscaDato"_s)
{
    setWindowTitle(u"Buscar"_s);
    option3d1.add(0, u"desde el &principio"_s).setChecked(true);
    option3d1.add(1, u"desde el &final"_s);
    option3d1.add(2, u"de a&quí en adelante"_s);
    Command1.setDefault(true);

    setContents(this, Column{
                          Fields{{u"&Texto a buscar :"_s, Text1}, {QString(), check3d1}},
                          Group(u"Comenzar a buscar"_s, Column{option3d1(0), option3d1(1), option3d1(2)}),
                          Row{Stretch(), Command1, Command2},
                      });

    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void buscaDato::activate()
{
    Text1.setFocus();
    Text1.selectAll();
}

QString buscaDato::patron() const
{
    return (check3d1.isChecked() ? u"*"_s : QString()) + Text1.text().trimmed() + u'*';
}

buscaDato::Desde buscaDato::desde() const
{
    if (option3d1(1).isChecked())
        return Desde::Final;
    return option3d1(2).isChecked() ? Desde::Aqui : Desde::Principio;
}
