#include "clinical/visits/listasDeConsulta.h"

#include "core/services/services.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace consultas;
using namespace forms;

namespace
{

struct Aspecto {
    const char *titulo, *completa;
};
constexpr Aspecto aspectos[] = {
    {"Sín&tomas", "No se admiten mas de cinco sintomas"},
    {"T&ratamientos", "No se admiten mas de cinco tratamientos"},
    {"&Diagnósticos", "No se admiten mas de cinco Diagnósticos"},
};

/// The lists as they stand on the screen: what is found leads to what is treated.
constexpr std::array orden = {Sintomas, Diagnosticos, Tratamientos};

} // namespace

ListasDeConsulta::ListasDeConsulta()
{
    for (const Grupo grupo : grupos) {
        ListBox &lista = *listas_[grupo];
        lista.installEventFilter(this);
        lista.setMinimumHeight(68); // as high as the two buttons beside it
        CommandButton &nuevo = Command1.add(grupo, u"Nuevo"_s, u"agregar"_s);
        CommandButton &borrar = Command2.add(grupo, u"Borrar"_s, u"quitar"_s);
        nuevo.setToolTip(u"Agrega de la tabla (F3 o Insert en la lista)"_s);
        borrar.setToolTip(u"Quita el renglón seleccionado (Supr en la lista)"_s);
        connect(&nuevo, &QPushButton::clicked, this, [this, grupo] { agregar(grupo); });
        connect(&borrar, &QPushButton::clicked, this, [this, grupo] { quitar(grupo); });
    }
}

Item ListasDeConsulta::disposicion(Botones botones)
{
    std::vector<Item> cajas;
    for (const Grupo grupo : orden) {
        const Item lista = Expanding(*listas_[grupo]);
        const Items comandos = {Command1(grupo), Command2(grupo), Stretch()};
        const Item caja = botones == Botones::AlLado ? Item(Row{lista, Column(comandos)})
                                                     : Item(Column{lista, Row(comandos)});
        cajas.push_back(Expanding(Group(QString::fromUtf8(aspectos[grupo].titulo), caja)));
    }
    return Column(std::move(cajas));
}

void ListasDeConsulta::setEnabled(bool enabled)
{
    for (const Grupo grupo : grupos)
        for (QWidget *control :
             {static_cast<QWidget *>(listas_[grupo]), static_cast<QWidget *>(&Command1(grupo)),
              static_cast<QWidget *>(&Command2(grupo))})
            control->setEnabled(enabled);
}

void ListasDeConsulta::vaciar()
{
    for (ListBox *lista : listas_)
        lista->clear();
}

void ListasDeConsulta::agregarRenglon(Grupo grupo, const Renglon &renglon)
{
    auto *item = new QListWidgetItem(renglon.nombre, listas_[grupo]);
    item->setData(Qt::UserRole, renglon.id);
    item->setToolTip(renglon.nombre); // the names of the classification are long
}

std::vector<Renglon> ListasDeConsulta::renglones(Grupo grupo) const
{
    std::vector<Renglon> todos;
    const ListBox &lista = *listas_[grupo];
    for (int i = 0; i < lista.count(); ++i)
        todos.push_back({lista.item(i)->text(), lista.item(i)->data(Qt::UserRole).toLongLong()});
    return todos;
}

/// Five are checked for on entry only: several symptoms chosen at once can take the list past them.
void ListasDeConsulta::agregar(int indice)
{
    if (indice < 0 || indice >= static_cast<int>(grupos.size())) {
        MODULE11::MuestraError(
            u"Debe seleccionar la tabla a agregar\nPuede elegir síntomas, diagnósticos o tratamientos "_s);
        return;
    }
    const auto grupo = static_cast<Grupo>(indice);
    if (listas_[grupo]->count() >= ranuras) {
        MODULE11::MuestraError(QString::fromUtf8(aspectos[grupo].completa));
        return;
    }
    QStringList nombres;
    for (const Renglon &renglon : elegidos(grupo)) {
        agregarRenglon(grupo, renglon);
        nombres += renglon.nombre;
    }
    if (nombres.isEmpty())
        return;
    const auto lugar = std::find(orden.begin(), orden.end(), grupo) + 1;
    if (lugar != orden.end())
        Command1(*lugar).setFocus();
    emit agregados(grupo, nombres);
}

std::vector<Renglon> ListasDeConsulta::elegidos(Grupo grupo) const
{
    switch (grupo) {
    case Sintomas:
        return catalogos::eligeSintomas();
    case Tratamientos:
        return {catalogos::eligeTratamiento(paciente_)};
    case Diagnosticos:
        break;
    }
    const auto diagnostico = catalogos::eligeDiagnostico();
    return diagnostico ? std::vector{*diagnostico} : std::vector<Renglon>();
}

void ListasDeConsulta::quitar(Grupo grupo)
{
    ListBox &lista = *listas_[grupo];
    const QListWidgetItem *actual = lista.currentItem();
    if (!actual || !actual->isSelected())
        return;
    const QString nombre = actual->text();
    delete lista.takeItem(lista.currentRow());
    emit quitado(grupo, nombre);
}

int ListasDeConsulta::conFoco() const
{
    for (const Grupo grupo : grupos)
        if (listas_[grupo]->hasFocus() || Command1(grupo).hasFocus() || Command2(grupo).hasFocus())
            return grupo;
    return -1;
}

bool ListasDeConsulta::comandoConFoco() const
{
    const int grupo = conFoco();
    return grupo >= 0 && !listas_[static_cast<std::size_t>(grupo)]->hasFocus();
}

bool ListasDeConsulta::eventFilter(QObject *receptor, QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress)
        return false;
    const auto lista = std::find(listas_.begin(), listas_.end(), receptor);
    const auto grupo = static_cast<Grupo>(lista - listas_.begin());
    switch (static_cast<QKeyEvent *>(evento)->key()) {
    case Qt::Key_Insert:
        agregar(grupo);
        return true;
    case Qt::Key_Delete:
        quitar(grupo);
        return true;
    default:
        return false;
    }
}

#include "moc_listasDeConsulta.cpp"
