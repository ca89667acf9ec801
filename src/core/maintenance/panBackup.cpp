#include "core/maintenance/panBackup.h"

#include "core/maintenance/respaldo.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"
#include "platform/forms/wrong.h"
#include "platform/settings/settings.h"

#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString seccion = u"Miscelaneas"_s, clave = u"RutaDestinoBackup"_s;

/// What is being written goes to the base before it is closed; a window that keeps its text keeps the backup
/// waiting.
bool cerrarFichas()
{
    if (!childArea())
        return true;
    for (QMdiSubWindow *ficha : childArea()->subWindowList())
        ficha->close();
    return std::ranges::none_of(childArea()->subWindowList(), &QMdiSubWindow::isVisible);
}

} // namespace

panBackup::panBackup() : Form(u"panBackup"_s)
{
    setWindowTitle(u"Seleccione destino del backup"_s);
    Command1.setDefault(true);
    setContents(
        this, Column{Fields{{Label1, Row{Expanding(Text1), Command3}}}, Row{Stretch(), Command1, Command2}});
    setMinimumWidth(520);
    connect(&Command1, &QPushButton::clicked, this, &panBackup::copiar);
    connect(&Command2, &QPushButton::clicked, this, &panBackup::unload);
    connect(&Command3, &QPushButton::clicked, this, &panBackup::elegirCarpeta);
}

void panBackup::load()
{
    msgBox(
        u"Proceso de Backup: \nEste proceso requiere que ningún otro programa esté accediendo a la base de datos de Sanirell!, de ser así, por favor, cierre la o las aplicaciones antes de continuar con este proceso.\nLuego de terminar el backup, el sistema se cerrará."_s,
        Icon::Information, u"Backup"_s);
    Text1.setText(settings::getSetting(seccion, clave));
}

void panBackup::elegirCarpeta()
{
    const QString elegida =
        folderDialog(windowTitle(), Text1.text().isEmpty() ? QDir::rootPath() : Text1.text());
    if (!elegida.isEmpty())
        Text1.setText(elegida);
}

void panBackup::copiar()
{
    clearWrong(Text1);
    if (Text1.text().trimmed().isEmpty()) {
        markWrong(Text1, u"Elija la carpeta"_s);
        return;
    }
    if (!cerrarFichas())
        return;
    const QString destino = QDir(Text1.text()).filePath(respaldo::nombre(basic::now()));
    MODULE11::BaseDatos.close();
    try {
        Progress avance(u"Se copia la base de datos"_s);
        if (!respaldo::copiar(basic::programFile(u"BASE.MDB"_s), destino, MODULE11::conexionDeLaBase(),
                              [&](qint64 hechos, qint64 total) { return avance.tell(hechos, total); }))
            return;
    } catch (const basic::Error &error) {
        MODULE11::MuestraError(error.description());
        markWrong(Text1, error.description());
        return;
    }
    settings::saveSetting(seccion, clave, Text1.text());
    MODULE11::terminar();
}

#include "moc_panBackup.cpp"
