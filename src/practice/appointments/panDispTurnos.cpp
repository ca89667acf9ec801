#include "practice/appointments/panDispTurnos.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "practice/appointments/turnos.h"

using namespace Qt::StringLiterals;
using namespace forms;

panDispTurnos::panDispTurnos(basic::Date fecha, qint64 idProfesional)
    : Form(u"panDispTurnos"_s), fecha_(fecha)
{
    setWindowTitle(u"Disponibilidad de turnos del dia"_s);
    Label1.setCaption(u"Turnos dados en el día : "_s + basic::dateText(fecha));
    lblProf.setCaption(QString::number(idProfesional));
    lblProf.hide();
    Command1.setDefault(true);
    DBGrid1.setSource(Data1, {{u"Hora"_s, u"Hora"_s, {}, 80}, {u"Paciente"_s, u"Paciente"_s, {}, 280}});
    DBGrid1.setRowLook(u"Paciente"_s, turnos::aspecto);
    setContents(this, Column{
                          Label1,
                          Expanding(DBGrid1),
                          Row{lblProf, Stretch(), Command1, Command2},
                      });
    resize(430, 480);
    connect(&DBGrid1, &DBGrid::accepted, this, &panDispTurnos::aceptar);
    connect(&Command1, &QPushButton::clicked, this, &panDispTurnos::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panDispTurnos::load()
{
    Data1.setRecordSource(
        u"Select * from turnos where fecha = %1 and idProfesional = %2  order by hora"_s.arg(
            dao::cdate(fecha_), lblProf.caption()));
    Data1.refresh();
    DBGrid1.setFocus();
}

QString panDispTurnos::hora()
{
    return Data1.hasRow() ? Data1.recordset()[u"Hora"].text() : QString();
}

void panDispTurnos::aceptar()
{
    if (!Data1.hasRow())
        return;
    if (!turnos::libre(Data1.recordset())) {
        msgBox(u"Turno ya dado."_s, Icon::Critical, u"Error"_s);
        return;
    }
    answer(u"SI"_s);
}

#include "moc_panDispTurnos.cpp"
