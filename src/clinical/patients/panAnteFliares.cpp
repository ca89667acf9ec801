#include "clinical/patients/panAnteFliares.h"

#include "core/session/session.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panAnteFliares::panAnteFliares() : Form(u"panAnteFliares"_s)
{
    setWindowTitle(u"Seleccione el antecedente familiar"_s);
    Label1.setWordWrap(true);
    Command1.setDefault(true);
    setContents(this, Column{Label1, Expanding(List1), Row{Command3, Stretch(), Command1, Command2}});
    resize(440, 380);
    connect(&Command1, &QPushButton::clicked, this, &panAnteFliares::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panAnteFliares::agregar);
}

void panAnteFliares::load()
{
    llenar();
}

void panAnteFliares::llenar()
{
    const QStringList antes = marcados();
    List1.clear();
    dao::Recordset filas =
        MODULE11::BaseDatos.openRecordset(u"Select * from AntecPsicoFliares order by Descripcion"_s);
    for (; !filas.eof(); filas.moveNext()) {
        const QString texto = filas[u"Descripcion"].text();
        auto *linea = new QListWidgetItem(texto, &List1);
        linea->setCheckState(antes.contains(texto) ? Qt::Checked : Qt::Unchecked);
    }
}

QStringList panAnteFliares::marcados() const
{
    QStringList textos;
    for (int i = 0; i < List1.count(); ++i)
        if (List1.item(i)->checkState() == Qt::Checked)
            textos += List1.item(i)->text();
    return textos;
}

void panAnteFliares::aceptar()
{
    if (marcados().isEmpty())
        msgBox(u"Debe seleccionar al menos un ítem !!"_s, Icon::Exclamation, u"Atención"_s);
    else
        answer(u"SI"_s);
}

void panAnteFliares::agregar()
{
    const auto nombre = inputBox(u"Ingrese el nombre de un nuevo antecendente psicologico familiar:"_s,
                                 u"Antec. Fliares."_s, {}, 100);
    if (!nombre || nombre->trimmed().isEmpty())
        return;
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"AntecPsicoFliares"_s);
    filas.addNew();
    filas[u"Descripcion"] = *nombre;
    filas.update();
    llenar();
}

#include "moc_panAnteFliares.cpp"
