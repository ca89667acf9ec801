#include "core/windows/panInicial.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/dao/error.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Linea {
    const char *texto, *tag;
};
constexpr Linea lineas[] = {
    {"Abrir la ficha de un paciente existente", "ABRIR"},
    {"Ingresarle al sistema la ficha de un nuevo paciente", "NUEVO"},
    {"Ver los turnos asignados para hoy", "TURNOS"},
    {"Mostrar la ayuda del sistema", "AYUDAS"},
};

} // namespace

panInicial::panInicial() : Form(u"panInicial"_s)
{
    setWindowTitle(u"Sanirell!"_s);
    QFont titulo = Label1.font();
    titulo.setPointSizeF(titulo.pointSizeF() * 1.8);
    titulo.setBold(true);
    Label1.setFont(titulo);
    Check1.setChecked(true);

    int indice = 0;
    for (const Linea &linea : lineas) {
        Label &label = Label3.add(indice, QString::fromUtf8(linea.texto));
        label.setCursor(Qt::PointingHandCursor);
        connect(&label, &Label::hovered, this, [this, indice] { subrayar(indice); });
        connect(&label, &Label::clicked, this, [this, &linea] { answer(QString::fromUtf8(linea.tag)); });
        ++indice;
    }
    setContents(this, Column{
                          Label1,
                          Space(8),
                          Label3(0),
                          Label3(1),
                          Label3(2),
                          Label4,
                          Label3(3),
                          Stretch(),
                          Check1,
                          Row{Stretch(), Command1},
                      });
    setMinimumWidth(440);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panInicial::load()
{
    basic::ignoring(dao::fileTrouble, [this] {
        dao::Recordset turnos = MODULE11::BaseDatos.openRecordset(u"Select * from turnos where fecha = "_s +
                                                                  dao::cdate(basic::today()));
        if (turnos.eof())
            return;
        turnos.moveLast();
        Label4.setCaption(
            u"(tiene asignado %1 turnos para hoy.)"_s.arg(basic::format(turnos.recordCount(), u"#####")));
    });
}

void panInicial::subrayar(int indice)
{
    for (auto &[i, label] : Label3) {
        QFont letra = label->font();
        letra.setUnderline(i == indice);
        label->setFont(letra);
    }
}

#include "moc_panInicial.cpp"
