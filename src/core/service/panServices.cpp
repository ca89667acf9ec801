#include "core/service/panServices.h"

#include "core/services/tiposDeAnalisis.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "platform/basic/errors.h"
#include "platform/forms/layout.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString delPlan = u"Plan de &Vacunación"_s;

Label &nota(const QString &texto)
{
    auto *rotulo = new Label({}, texto);
    rotulo->setWordWrap(true);
    return *rotulo;
}

QString sinLetra(QString titulo)
{
    return titulo.remove(u'&');
}

/// A file of an earlier version may not have the table; its page stays empty.
void leer(Data &datos, const QString &sql)
{
    datos.setRecordSource(sql);
    basic::ignoring({dao::Error::NotATable}, [&] { datos.refresh(); });
}

} // namespace

panServices::panServices() : Form(u"panServices"_s)
{
    setWindowTitle(u"Services y complementos del sistema"_s);
    SSTab1.setCaptionsAtSide();
    Text1.setText(u"POSRECETARIO"_s);
    DBGrid1.setSource(Data1, {{u"Estudio"_s, u"Estudio"_s}});
    DBGrid1.setEditable(true);
    DBGrid2.setSource(Data2, {{u"Orden"_s, u"orden"_s, {}, 60},
                              {u"Nombre"_s, u"Descripcion"_s, {}, 140},
                              {u"Detalles"_s, u"detalle"_s, {}, 250},
                              {u"Período"_s, u"Dosis"_s, {}, 120},
                              {u"Código"_s, u"Vacuna"_s, {}, 110},
                              {u"Meses"_s, u"Tiempo en meses"_s, {}, 60}});
    DBGrid3.setSource(Data3, {{u"Edad (meses)"_s, u"Edad"_s, {}, 110},
                              {u"Tipo"_s, u"tipo"_s, {}, 70, false, true},
                              {u"P 5"_s, u"P_5"_s, {}, 110},
                              {u"P 25"_s, u"P_25"_s, {}, 110},
                              {u"P 50"_s, u"P_50"_s, {}, 110},
                              {u"P 75"_s, u"P_75"_s, {}, 110},
                              {u"P 95"_s, u"P_95"_s, {}, 110}});
    DBGrid3.setEditable(true);
    disponer();
    conectar();
}

Item panServices::paginaDeTension()
{
    return Column{
        nota(
            u"Valores normales según la edad. Tipo: V varón y M mujer; + es la máxima (sistólica) y - la mínima (diastólica). Se corrigen en la misma grilla."_s),
        Expanding(DBGrid3)};
}

Item panServices::paginaDeVacunas()
{
    return Column{Expanding(DBGrid2), Row{Command2, Command3, Command4, Stretch(), Command11}};
}

Item panServices::paginaDelRecetario()
{
    Text1.setMinimumWidth(280);
    return Column{Row{Fields{{u"No&mbre del recetario :"_s, Text1}}, Command1, Stretch()},
                  nota(u"Esto identifica los recetarios en la red según cada profesional."_s), Label1,
                  Stretch()};
}

Item panServices::paginaDeAnalisis()
{
    return Column{nota(u"Cada análisis de la lista se puede pedir a todos los pacientes."_s),
                  Expanding(List1), Row{Command5, Command6, Stretch()}};
}

Item panServices::paginaDeEstudios()
{
    return Column{Expanding(DBGrid1), Row{Command7, Command8, Stretch()}};
}

Item panServices::paginaDeVaciado()
{
    Tree1.setHeaderLabels({u"Tabla"_s, u"Registros"_s});
    Tree1.setHeaderHidden(false);
    Tree1.setRootIsDecorated(false);
    Tree1.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    Tree1.header()->setStretchLastSection(false);
    return Column{
        nota(
            u"Si desea vaciar las tablas de consultorio, historias clinicas, consultas, medidas, a excepcion del padrón de pacientes, utilice éste botón."_s),
        chkCopia, Row{Command9, Stretch()}, Expanding(Tree1)};
}

void panServices::disponer()
{
    setContents(
        this, Column{Expanding(Tabs(SSTab1,
                                    {{u"Valores de la &tensión arterial"_s, paginaDeTension()},
                                     {delPlan, paginaDeVacunas()},
                                     {u"Configurar el &Recetario"_s, paginaDelRecetario()},
                                     {u"Agregar ítems a los a&nálisis"_s, paginaDeAnalisis()},
                                     {u"Agregar ítems a los &estudios especiales"_s, paginaDeEstudios()},
                                     {u"&Opciones"_s, opciones_.contenido()},
                                     {u"Vaciado de las tablas de registros diarios"_s, paginaDeVaciado()}})),
                     Row{Stretch(), Command10}});
    resize(1120, 600);
}

void panServices::conectar()
{
    connect(&SSTab1, &QTabWidget::currentChanged, this, &panServices::paginaElegida);
    connect(&Command1, &QPushButton::clicked, this, &panServices::crearRecetario);
    connect(&Command2, &QPushButton::clicked, this, [this] { ports::agregaDosisAlPlan(Data2); });
    connect(&Command3, &QPushButton::clicked, this, [this] { ports::editaDosisDelPlan(Data2); });
    connect(&DBGrid2, &DBGrid::accepted, &Command3, &QAbstractButton::click);
    connect(&Command4, &QPushButton::clicked, this, &panServices::quitarVacuna);
    connect(&Command5, &QPushButton::clicked, this, &panServices::agregarAnalisis);
    connect(&Command6, &QPushButton::clicked, this, &panServices::quitarAnalisis);
    connect(&Command7, &QPushButton::clicked, this, &panServices::agregarEstudio);
    connect(&Command8, &QPushButton::clicked, this, &panServices::quitarEstudio);
    connect(&Command9, &QPushButton::clicked, this, &panServices::vaciar);
    connect(&Command10, &QPushButton::clicked, this, &panServices::unload);
    connect(&Command11, &QPushButton::clicked, this, [this] {
        screens::showModal("panCalVacunas");
        Data2.refresh();
    });
    connect(&Data2, &Data::reposition, this, [this] {
        Command3.setEnabled(ports::editaDosisDelPlan && Data2.hasRow());
        Command4.setEnabled(Data2.hasRow());
    });
    connect(&Data1, &Data::reposition, this, [this] { Command8.setEnabled(Data1.hasRow()); });
    connect(&List1, &QListWidget::currentRowChanged, this,
            [this](int fila) { Command6.setEnabled(fila >= 0); });
    Command2.setEnabled(static_cast<bool>(ports::agregaDosisAlPlan));
    Command11.setEnabled(screens::has("panCalVacunas"));
    for (CommandButton *deLaFila : {&Command3, &Command4, &Command6, &Command8})
        deLaFila->setEnabled(false);
}

void panServices::load()
{
    soloLaPagina(tag());
    leer(Data1, u"Select * from tablaEstudios order by Estudio"_s);
    leer(Data2, u"select * from CalVacunas order by orden"_s);
    leer(Data3, u"Select * from presion order by tipo, Edad"_s);
    List1.addItems(laboratorio::estudios());
    mostrarRecetario();
    opciones_.mostrar();
    paginaElegida();
}

void panServices::soloLaPagina(const QString &titulo)
{
    for (int pagina = 0; pagina < SSTab1.count(); ++pagina) {
        if (sinLetra(SSTab1.tabText(pagina)) != titulo)
            continue;
        for (int otra = 0; otra < SSTab1.count(); ++otra)
            SSTab1.setTabVisible(otra, otra == pagina);
        SSTab1.setCurrentIndex(pagina);
        return;
    }
}

/// A million rows are not counted for somebody who came to add a test.
void panServices::paginaElegida()
{
    if (SSTab1.currentIndex() == Vaciado)
        contarRegistros();
}

#include "moc_panServices.cpp"
