#include "documents/prescriptions/pan_Recetario.h"

#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/session.h"
#include "documents/prescriptions/panConfigReceta.h"
#include "documents/prescriptions/recetas.h"
#include "documents/prescriptions/winReceta.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/shell/shell.h"

using namespace Qt::StringLiterals;
using namespace forms;

pan_Recetario::pan_Recetario() : Form(u"pan_Recetario"_s)
{
    setWindowTitle(u"Recetario"_s);
    DBGrid1.setSource(Data1, {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 90},
                              {u"Paciente"_s, u"Paciente"_s, {}, 260},
                              {u"Receta"_s, u"Receta"_s, {}, 480}});
    Data1.bind(Text1, u"Receta"_s);
    Text1.setReadOnly(true);
    setContents(this, Column{
                          Label1,
                          Expanding(Splitter(Qt::Vertical, {{DBGrid1, 3}, {Text1, 1}})),
                          Row{Command1, Command3, Command2, Command6, Command7, Command8, Command5, Stretch(),
                              Command4},
                      });
    resize(980, 560);
    connect(&Data1, &Data::reposition, this, &pan_Recetario::mostrar);
    connect(&DBGrid1, &DBGrid::accepted, this, &pan_Recetario::abrir);
    connect(&Command1, &QPushButton::clicked, this, &pan_Recetario::nueva);
    connect(&Command2, &QPushButton::clicked, this, &pan_Recetario::quitar);
    connect(&Command3, &QPushButton::clicked, this, &pan_Recetario::abrir);
    connect(&Command4, &QPushButton::clicked, this, &pan_Recetario::unload);
    connect(&Command5, &QPushButton::clicked, this, [] { panConfigReceta().showModal(); });
    connect(&Command6, &QPushButton::clicked, this, &pan_Recetario::buscar);
    connect(&Command7, &QPushButton::clicked, this, &pan_Recetario::imprimir);
    connect(&Command8, &QPushButton::clicked, this, &pan_Recetario::enviar);
    Command1.setEnabled(bool(ports::eligePaciente));
}

void pan_Recetario::load()
{
    Data1.setRecordSource(u"select * from Recetario where Dr = %1 order by fecha, paciente"_s.arg(
        dao::quoted(MODULE11::DrActual)));
    Data1.refresh();
    DBGrid1.setFocus();
}

void pan_Recetario::mostrar()
{
    const bool hay = Data1.hasRow();
    Command6.setEnabled(hay && bool(ports::buscaEnPacientes));
    Command8.setEnabled(hay && shell::canMail());
    Command8.setToolTip(shell::canMail() ? QString() : u"Este equipo no tiene un programa de correo"_s);
}

bool pan_Recetario::hayReceta()
{
    if (Data1.hasRow())
        return true;
    msgBox(u"Seleccione una receta de la lista superior. !"_s, Icon::Critical, u"Error"_s);
    return false;
}

qint64 pan_Recetario::idReceta()
{
    return Data1.recordset()[u"idReceta"].integer();
}

void pan_Recetario::irA(qint64 idReceta)
{
    Data1.refresh(u"idReceta = "_s + QString::number(idReceta));
}

/// What the sheet printed meanwhile is in the file too.
void pan_Recetario::nueva()
{
    const std::optional<qint64> paciente = ports::eligePaciente();
    if (!paciente)
        return;
    if (const std::optional<QString> texto = EmiteReceta(*paciente, {}))
        irA(recetas::registrar(*paciente, *texto));
    else
        Data1.refresh();
}

void pan_Recetario::quitar()
{
    if (!hayReceta() || !MODULE11::PreguntaSiBorra(u"Borra esta receta"_s))
        return;
    Data1.updateRecord();
    Data1.deleteRow();
}

void pan_Recetario::abrir()
{
    if (!hayReceta())
        return;
    dao::Recordset &receta = Data1.recordset();
    const qint64 id = idReceta();
    if (const std::optional<QString> texto =
            EmiteReceta(receta[u"idPaciente"].integer(), receta[u"Receta"].text()))
        Data1.set(u"Receta"_s, recetas::conPunto(*texto));
    irA(id);
}

void pan_Recetario::buscar()
{
    std::optional<QString> sinHallar;
    Data1.change([&](dao::Recordset &recetas) {
        sinHallar = ports::buscaEnPacientes(recetas, u"paciente"_s, u"idPaciente"_s);
    });
    if (sinHallar)
        MODULE11::Aviso(u"No hay recetas de \"%1\"."_s.arg(*sinHallar));
}

void pan_Recetario::imprimir()
{
    if (hayReceta())
        recetas::imprimir(idReceta());
}

void pan_Recetario::enviar()
{
    if (hayReceta() && !recetas::enviarPorCorreo(idReceta()))
        MODULE11::MuestraError(u"No se pudo abrir el programa de correo."_s);
}

#include "moc_pan_Recetario.cpp"
