#include "core/services/services.h"
#include "platform/forms/boxes.h"
#include "specialties/odontology/tooth.h"

using namespace Qt::StringLiterals;
using namespace forms;
using odonto::piezaDe;

namespace
{

constexpr int largoDeLeyenda = 40;

} // namespace

/// False, and told, without a patient and a scheme.
bool tooth::hayDondeTrabajar()
{
    if (paciente_ && !esquema().isEmpty())
        return true;
    msgBox(paciente_ ? u"Seleccione un esquema de Odontograma"_s : u"Seleccione un Paciente"_s,
           Icon::Critical, u"Error"_s);
    return false;
}

void tooth::elegirCara(int cara)
{
    if (!hayDondeTrabajar())
        return;
    cara_ = cara;
    mostrarEleccion();
}

void tooth::mostrarEleccion()
{
    const int pieza = piezaDe(cara_);
    Picture1.elegir(pieza);
    Label3.setCaption(pieza == 0 ? QString() : QString::number(pieza));
    const QString dicho = pieza == 0 ? QString() : odonto::enPalabras(esquema_, pieza);
    lblPieza.setCaption(
        pieza == 0 ? u"Elija una pieza con un clic; el botón derecho abre su menú."_s
                   : u"Pieza %1, %2%3"_s.arg(odonto::numeroFdi(pieza))
                         .arg(odonto::nombreDePieza(pieza), dicho.isEmpty() ? QString() : u": "_s + dicho));
    herramientas_.bajar(pieza == 0 ? odonto::sinMarca : esquema_.marca(pieza).tipo);
}

void tooth::usarHerramienta(int panel)
{
    if (const auto cara = odonto::Herramientas::caraDe(panel)) {
        pintarCara(odonto::caraDe(piezaDe(cara_), *cara));
    } else if (panel == odonto::Herramientas::PiezaEntera) {
        pintarTodo();
    } else if (panel == odonto::Herramientas::ColorActual) {
        hayDondeTrabajar();
    } else {
        for (const odonto::ClaseDeMarca &clase : odonto::clasesDeMarca())
            if (clase.herramienta == panel)
                marcar(clase.tipo);
    }
}

/// Changes the chosen tooth, after the checks; without one nothing happens.
void tooth::alterar(const std::function<void(int pieza)> &cambio)
{
    if (hayDondeTrabajar() && cara_ != 0) {
        const odonto::Esquema antes = esquema_;
        cambio(piezaDe(cara_));
        pendiente_ = pendiente_ || esquema_ != antes;
        Picture1.mostrarPieza(esquema_, piezaDe(cara_));
    }
    mostrarEleccion(); // a tool that did nothing is not lowered
}

void tooth::marcar(int tipo)
{
    alterar([&](int pieza) { esquema_.alternarMarca(pieza, tipo, color_); });
}

void tooth::pintarTodo()
{
    alterar([&](int pieza) { esquema_.alternarPieza(pieza, color_); });
}

void tooth::pintarCara(int cara)
{
    alterar([&](int) { esquema_.pintar(cara, color_); });
}

void tooth::pedirLeyenda()
{
    if (!hayDondeTrabajar() || cara_ == 0)
        return;
    const QString antes = esquema_.marca(piezaDe(cara_)).leyenda;
    const auto leyenda = inputBox(u"Escriba la leyenda auxiliar"_s, u"Leyenda"_s, antes, largoDeLeyenda);
    if (!leyenda)
        return;
    if (!odonto::sePuedeGuardar(*leyenda)) {
        MODULE11::MuestraError(u"Esa leyenda no se puede guardar: \"100\" significa sin leyenda."_s);
        return;
    }
    alterar([&](int pieza) { esquema_.ponerLeyenda(pieza, *leyenda, color_); });
}

void tooth::limpiarPieza()
{
    alterar([&](int pieza) { esquema_.limpiar(pieza); });
}

QAction &tooth::agregarAlMenu(QMenu &menu, const QString &nombre, const QString &rotulo,
                              std::function<void()> trabajo)
{
    QAction *accion = menu.addAction(rotulo, this, std::move(trabajo));
    accion->setObjectName(nombre);
    return *accion;
}

void tooth::armarMenu()
{
    menuPop.setObjectName(u"menuPop"_s);
    agregarAlMenu(menuPop, u"menuPintaTodo"_s, u"Pintar toda la pieza"_s, [this] { pintarTodo(); });
    agregarAlMenu(menuPop, u"menuColores"_s, u"Pintar"_s, [this] { pintarCara(cara_); });
    QMenu *leyenda = menuPop.addMenu(u"Leyenda pie"_s);
    leyenda->setObjectName(u"menuLeyenda"_s);
    leyenda->menuAction()->setObjectName(u"menuLeyenda"_s);
    agregarAlMenu(*leyenda, u"menuLeyendaParticular"_s, u"Leyenda particular"_s, [this] { pedirLeyenda(); });
    agregarAlMenu(*leyenda, u"menuQuitaLeyenda"_s, u"Sin leyenda"_s,
                  [this] { alterar([this](int pieza) { esquema_.ponerLeyenda(pieza, {}, color_); }); });
    menuPop.addSeparator();
    for (const odonto::ClaseDeMarca &clase : odonto::clasesDeMarca())
        agregarAlMenu(menuPop, clase.menu.toString(), clase.nombre.toString(),
                      [this, tipo = clase.tipo] { marcar(tipo); });
    menuPop.addSeparator();
    const auto muestra = [this](const QString &nombre, const QString &rotulo, QWidget &ventana) {
        QAction &accion =
            agregarAlMenu(menuPop, nombre, rotulo, [&ventana] { ventana.setVisible(ventana.isHidden()); });
        accion.setCheckable(true);
        connect(&menuPop, &QMenu::aboutToShow, &accion, [&] { accion.setChecked(!ventana.isHidden()); });
    };
    muestra(u"menuMuestraH"_s, u"Mostrar Herramientas"_s, herramientas_);
    muestra(u"menuMuestraColores"_s, u"Mostrar Colores"_s, colores_);
    for (const QMenu *menu : {&menuPop, leyenda}) // of the tooth that is chosen, without opening the menu
        Picture1.addActions(menu->actions());
}
