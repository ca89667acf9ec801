#include "core/maintenance/panRestaurar.h"

#include "core/maintenance/copias.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cFecha, cPacientes, cTamano, cArchivo, columnas };

constexpr double mega = 1024 * 1024;

QString fechaDe(const restauracion::Copia &copia)
{
    return copia.momento.toString(u"dd/MM/yyyy HH:mm"_s);
}

/// What to show for the patients of a copy: their number, or that it is none.
QString cuenta(const QString &archivo)
{
    try {
        return basic::format(restauracion::pacientes(archivo, MODULE11::conexionDeLaBase()), u"#,##0");
    } catch (const basic::Error &) {
        return u"no se puede abrir"_s;
    }
}

} // namespace

panRestaurar::panRestaurar() : Form(u"panRestaurar"_s)
{
    setWindowTitle(u"Restaurar una copia de seguridad"_s);
    Grid1.setObjectName(u"Grid1"_s);
    Grid1.setColumnCount(columnas);
    Grid1.setHorizontalHeaderLabels({u"Fecha"_s, u"Pacientes"_s, u"Tamaño"_s, u"Archivo"_s});
    Grid1.horizontalHeader()->setStretchLastSection(true);
    Grid1.verticalHeader()->hide();
    Grid1.setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1.setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid1.setSelectionMode(QAbstractItemView::SingleSelection);
    Grid1.setTabKeyNavigation(false);
    Grid1.setMinimumHeight(220);
    Grid1.setColumnWidth(cFecha, 160);
    Grid1.setColumnWidth(cPacientes, 130);
    Label1.setBuddy(&Grid1);
    Command1.setDefault(true);
    Label2.setWordWrap(true);
    Label2.setCaption(
        u"El archivo de ahora queda aparte, con la fecha en el nombre. Lo que se cargó después de la copia elegida habrá que volver a cargarlo. Al terminar el sistema se cerrará."_s);
    setContents(this, Column{Label1, Expanding(Grid1), Label2, Row{Command3, Stretch(), Command1, Command2}});
    resize(860, 440);
    connect(&Grid1, &QTableWidget::itemSelectionChanged, this,
            [this] { Command1.setEnabled(!Grid1.selectedItems().isEmpty()); });
    connect(&Command1, &QPushButton::clicked, this, &panRestaurar::restaurar);
    connect(&Command2, &QPushButton::clicked, this, &panRestaurar::unload);
    connect(&Command3, &QPushButton::clicked, this, &panRestaurar::buscarOtra);
}

void panRestaurar::load()
{
    listar();
    contar();
}

/// Nothing is chosen until the person chooses.
void panRestaurar::listar()
{
    const respaldo::Destino destino = respaldo::destino();
    for (const restauracion::Copia &copia :
         restauracion::copiasConocidas({destino.carpeta, destino.segunda}, basic::programFolder()))
        agregar(copia);
    Command1.setEnabled(false);
}

void panRestaurar::agregar(const restauracion::Copia &copia)
{
    const int fila = Grid1.rowCount();
    copias_.push_back(copia);
    Grid1.insertRow(fila);
    Grid1.setItem(fila, cFecha, new QTableWidgetItem(fechaDe(copia)));
    Grid1.setItem(fila, cPacientes, new QTableWidgetItem(u"..."_s));
    Grid1.setItem(
        fila, cTamano,
        new QTableWidgetItem(basic::format(static_cast<double>(copia.bytes) / mega, u"#,##0.0") + u" MB"_s));
    Grid1.setItem(fila, cArchivo, new QTableWidgetItem(QDir::toNativeSeparators(copia.archivo)));
    for (const int columna : {cPacientes, cTamano})
        Grid1.item(fila, columna)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

/// The copies whose patients are not in sight yet, beside the window: a slow disk does not hold it up.
void panRestaurar::contar()
{
    std::vector<std::pair<int, QString>> faltan;
    for (int fila = 0; fila < Grid1.rowCount(); ++fila)
        if (Grid1.item(fila, cPacientes)->text() == u"...")
            faltan.emplace_back(fila, copias_[static_cast<std::size_t>(fila)].archivo);
    cuenta_ = std::jthread([this, faltan = std::move(faltan)](const std::stop_token &basta) {
        for (const auto &[fila, archivo] : faltan) {
            if (basta.stop_requested())
                return;
            QMetaObject::invokeMethod(
                this, [this, fila = fila, texto = cuenta(archivo)] { mostrarPacientes(fila, texto); },
                Qt::QueuedConnection);
        }
    });
}

void panRestaurar::mostrarPacientes(int fila, const QString &texto)
{
    Grid1.item(fila, cPacientes)->setText(texto);
}

void panRestaurar::buscarOtra()
{
    const QString archivo =
        openFileDialog(windowTitle(), QDir::rootPath(), u"Copias (*.MDB *.mdb *.BAK *.aparte)"_s);
    if (archivo.isEmpty())
        return;
    const QFileInfo info(archivo);
    agregar({archivo, respaldo::momentoDe(info.fileName()).value_or(info.lastModified()), info.size()});
    Grid1.selectRow(Grid1.rowCount() - 1);
    contar();
}

void panRestaurar::restaurar()
{
    const restauracion::Copia copia = copias_[static_cast<std::size_t>(Grid1.currentRow())];
    if (!MODULE11::PreguntaSiBorra(
            u"La base de datos quedará como estaba el %1.\nLo que se cargó después no estará en ella.\n¿Desea restaurar esta copia?"_s
                .arg(fechaDe(copia))) ||
        !mantenimiento::cerrarFichas())
        return;
    cuenta_ = {}; // it may have the chosen copy open
    MODULE11::BaseDatos.close();
    try {
        poner(copia);
    } catch (const basic::Error &error) {
        MODULE11::MuestraError(u"La copia no se pudo restaurar; la base de datos está como estaba.\n"_s +
                               error.description());
        reabrir();
    }
}

void panRestaurar::poner(const restauracion::Copia &copia)
{
    const QString aparte = restauracion::nombreAparte(basic::now());
    const bool habiaBase = QFileInfo::exists(basic::programFile(u"BASE.MDB"_s));
    const bool hecho = mantenimiento::trabajar(
        u"Se restaura la copia"_s, mantenimiento::Detencion::Posible, [&](const auto &avance) {
            return restauracion::restaurar(copia.archivo, basic::programFolder(), aparte,
                                           MODULE11::conexionDeLaBase(), avance);
        });
    if (!hecho) {
        reabrir();
        return;
    }
    const QString anterior = habiaBase ? u"\nEl archivo anterior quedó con el nombre "_s + aparte : QString();
    MODULE11::Aviso(u"Se restauró la copia del %1, debe reiniciar Sanirell!"_s.arg(fechaDe(copia)) +
                    anterior);
    MODULE11::terminar();
}

/// The session goes on with the file that it had.
void panRestaurar::reabrir()
{
    basic::ignoring({dao::Error::FileNotFound}, [] {
        MODULE11::BaseDatos.open(basic::programFile(u"BASE.MDB"_s), false, false,
                                 MODULE11::conexionDeLaBase());
    });
    contar();
}

#include "moc_panRestaurar.cpp"
