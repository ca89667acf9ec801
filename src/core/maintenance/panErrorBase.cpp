#include "core/maintenance/panErrorBase.h"

#include "core/maintenance/trabajo.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace forms;

panErrorBase::panErrorBase() : Form(u"panErrorBase"_s)
{
    setWindowTitle(u"Error en la base de datos"_s);
    Label1.setCaption(
        u"Se ha producido un error al intentar abrir el archivo BASE.MDB que es la base de datos del sistema, donde se alojan los datos que ud. generó."_s);
    Label3.setCaption(
        u"1 - Se cerró inapropiadamente el sistema como apagando el equipo dentro del mismo o un corte de energía."_s);
    Label4.setCaption(
        u"2 - Haber abierto el archivo BASE.MDB con otra aplicación y haberlo manipulado inadecuadamente."_s);
    Label5.setCaption(u"3 - No se encuentre el archivo BASE.MDB., borrado o renombrado."_s);
    for (Label *texto : {&Label1, &Label3, &Label4, &Label5})
        texto->setWordWrap(true);
    Command1.setDefault(true);
    setContents(this,
                Column{Label1, Label2, Label3, Label4, Label5, Space(8), Row{Command1, Stretch(), Command2}});
    setFixedWidth(560);
    connect(&Command1, &QPushButton::clicked, this, &panErrorBase::reparar);
    connect(&Command2, &QPushButton::clicked, this, [] { MODULE11::terminar(); });
}

void panErrorBase::reparar()
{
    const QString base = basic::programFile(u"BASE.MDB"_s);
    if (!QFile::exists(base)) {
        MODULE11::MuestraError(
            u"No se encuentra la base de datos en el directorio por omisión del sistema."_s);
        MODULE11::terminar();
        return;
    }
    MODULE11::BaseDatos.close();
    const QString titulo = u"Reparando base"_s;
    try {
        mantenimiento::trabajar(u"Espere miestras se actualiza la base de datos..."_s,
                                mantenimiento::Detencion::Imposible, [&](const auto &avance) {
                                    return dao::repairDatabase(
                                        base, MODULE11::conexionDeLaBase(), [&](qint64 hechos, qint64 total) {
                                            return avance(u"Se repara:"_s, hechos, total);
                                        });
                                });
        msgBox(u"Proceso de reparado realizado con exito!"_s, Icon::Information, titulo);
    } catch (const basic::Error &) {
        msgBox(
            u"El sistema no pudo reparar la base de datos 'BASE.MDB', el archivo está dañado o está siendo utilizado por otra aplicación y/o usuario."_s,
            Icon::Critical, titulo);
    }
}

panErrorB::panErrorB() : Form(u"panErrorB"_s)
{
    setWindowTitle(u"Error al abrir base de datos"_s);
    Label1.setCaption(
        u"Se ha producido un error al querer intentar abrir las bases de datos del sistema, asegurese que existan los archivos BASE.MDB y BASE2.MDB en la carpeta del sistema, si existen, pongase en contancto con el servicio técnico de Torvendo!."_s);
    Label1.setWordWrap(true);
    Command1.setDefault(true);
    setContents(this, Column{Label1, Space(8), Row{Stretch(), Command1}});
    setFixedWidth(520);
    connect(&Command1, &QPushButton::clicked, this, &panErrorB::unload);
}

#include "moc_panErrorBase.cpp"
