#include "clinical/patients/buscaPaciente.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

buscaPaciente::buscaPaciente() : Form(u"buscaPaciente"_s)
{
    setWindowTitle(u"Buscar Paciente"_s);
    option3d1.add(0, u"Desde el &inicio"_s).setChecked(true);
    option3d1.add(1, u"Desde el &final"_s);
    option3d1.add(2, u"&De aquí en adelante"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"Iniciales a &buscar :"_s, Text1}, {QString(), Check3d1}},
                          Group(u"Comenzar a buscar"_s, Column{option3d1(0), option3d1(1), option3d1(2)}),
                          Row{Stretch(), Command1, Command2},
                      });
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"PORAP"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"PORHI"_s); });
}

void buscaPaciente::activate()
{
    Text1.setFocus();
    Text1.selectAll();
}

QString buscaPaciente::patron() const
{
    return (Check3d1.isChecked() ? u"*"_s : QString()) + Text1.text().trimmed() + u'*';
}

int buscaPaciente::desde() const
{
    for (int i = 0; i < option3d1.size(); ++i)
        if (option3d1(i).isChecked())
            return i;
    return 0;
}
