#include "core/windows/panSelProf.h"

#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/dao/error.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSelProf::panSelProf() : Form(u"panSelProf"_s)
{
    setWindowTitle(u"Seleccionar Profesional"_s);
    Label1.setWordWrap(true);
    lblVacia.setWordWrap(true);
    lblVacia.setAlignment(Qt::AlignTop | Qt::AlignLeft);
    Command1.setDefault(true);
    setContents(this, Column{
                          Label1,
                          lblVacia,
                          Expanding(DBGrid1),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(560, 380);
    DBGrid1.setSource(Data1,
                      {{u"Nombre"_s, u"Nombre"_s, {}, 280}, {u"Especialidad"_s, u"Especialidad"_s, {}, 200}});
    connect(&DBGrid1, &DBGrid::accepted, &Command1, &QPushButton::click);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panSelProf::load()
{
    Data1.setRecordSource(u"Select * from Profesionales order by Nombre"_s);
    basic::ignoring(dao::fileTrouble, [this] { Data1.refresh(); });
    const bool hay = Data1.hasRow();
    Command1.setEnabled(hay);
    lblVacia.setVisible(!hay);
}

QString panSelProf::nombre()
{
    return Data1.hasRow() ? Data1.recordset()[u"Nombre"].text() : QString();
}

#include "moc_panSelProf.cpp"
