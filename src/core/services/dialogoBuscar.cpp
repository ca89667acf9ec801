#include "core/services/dialogoBuscar.h"

#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;
using services::DialogoBuscar;

DialogoBuscar::DialogoBuscar(const QString &name, const QString &titulo, const QString &casilla,
                             const Textos &textos)
    : Form(name), Command1(u"Command1"_s, textos.aceptar, u"buscar"_s),
      Command2(u"Command2"_s, textos.segundo), check3d1(casilla, textos.enCualquierParte)
{
    setWindowTitle(titulo);
    option3d1.add(0, textos.principio).setChecked(true);
    option3d1.add(1, textos.final);
    option3d1.add(2, textos.aqui);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{textos.texto, Text1}, {QString(), check3d1}},
                          Group(u"Comenzar a buscar"_s, Column{option3d1(0), option3d1(1), option3d1(2)}),
                          Row{Stretch(), Command1, Command2},
                      });
}

void DialogoBuscar::activate()
{
    Text1.setFocus();
    Text1.selectAll();
}

bool DialogoBuscar::mover(dao::Recordset &recordset, const QString &campo) const
{
    const auto lugar = check3d1.isChecked() ? dao::Match::Anywhere : dao::Match::Beginning;
    const QString criterio =
        u"[%1] LIKE "_s.arg(campo) + dao::quoted(dao::typedPattern(Text1.text().trimmed(), lugar));
    if (option3d1(1).isChecked())
        recordset.findLast(criterio);
    else if (option3d1(2).isChecked())
        recordset.findNext(criterio);
    else
        recordset.findFirst(criterio);
    return !recordset.noMatch();
}

#include "moc_dialogoBuscar.cpp"
