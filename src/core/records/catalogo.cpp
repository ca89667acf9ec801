#include "core/records/catalogo.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/wrong.h"

#include <QKeyEvent>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;

namespace records
{

namespace
{

const QString vacio = u"-"_s;

QString oVacio(const QString &texto)
{
    return texto.isEmpty() ? vacio : texto;
}

} // namespace

Catalogo::Catalogo(const QString &ventana, Tabla tabla) : Form(ventana), tabla_(std::move(tabla))
{
    int indice = 0;
    for (const Campo &campo : tabla_.campos)
        mDato.add(indice++, campo.largo);
    List1.setMinimumSize(300, 260);
    connect(&List1, &QListWidget::currentItemChanged, this, &Catalogo::elegir);
    connect(&List1, &QListWidget::itemSelectionChanged, this, &Catalogo::elegir);
    connect(&List1, &QListWidget::itemClicked, this, &Catalogo::elegir);
    connect(&List1, &QListWidget::itemDoubleClicked, this, &Catalogo::aceptar);
    connect(&Command1, &QPushButton::clicked, this, &Catalogo::aceptar);
    connect(&Command3, &QPushButton::clicked, this, &Catalogo::nuevo);
    connect(&Command4, &QPushButton::clicked, this, &Catalogo::quitar);
    connect(&Command6, &QPushButton::clicked, this, &Catalogo::guardar);
}

Item Catalogo::botones(Item otros)
{
    return Row{Command3, Command4, Command6, Stretch(), std::move(otros)};
}

void Catalogo::activate()
{
    if (cargado_)
        return;
    cargado_ = true;
    preparar();
    llenar();
    List1.setFocus();
}

/// Enter takes what is chosen in the list, and nothing where nothing is: the key that opened the window, held
/// too long, must not leave blank lines in the visit. In a field, where a row is being written, it does
/// nothing.
void Catalogo::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !List1.hasFocus())
        Form::keyPressEvent(event);
    else if (!elegidos().empty())
        aceptar();
}

bool Catalogo::queryUnload()
{
    setTag(respuestaAlCerrar());
    return true;
}

std::vector<Renglon> Catalogo::elegidos() const
{
    std::vector<Renglon> renglones;
    for (int fila = 0; fila < List1.count(); ++fila)
        if (const QListWidgetItem *renglon = List1.item(fila); renglon->isSelected())
            renglones.push_back({renglon->text(), renglon->data(Qt::UserRole).toLongLong()});
    return renglones;
}

dao::Recordset Catalogo::abrir() const
{
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(tabla_.nombre, dao::Recordset::Kind::Table);
    filas.setIndex(tabla_.indice);
    return filas;
}

void Catalogo::agregarALaLista(dao::Recordset &fila)
{
    const basic::Value nombre = fila[tabla_.campos.front().columna];
    auto *renglon = new QListWidgetItem(nombre.isNull() ? vacio : nombre.text(), &List1);
    renglon->setData(Qt::UserRole, fila[tabla_.id].integer());
    renglon->setToolTip(renglon->text()); // names may be longer than the list is wide
}

int Catalogo::filaDe(qint64 id) const
{
    for (int fila = 0; fila < List1.count(); ++fila)
        if (List1.item(fila)->data(Qt::UserRole).toLongLong() == id)
            return fila;
    return -1;
}

void Catalogo::llenar()
{
    const std::vector<Renglon> antes = elegidos();
    {
        const QSignalBlocker silencio(List1);
        List1.clear();
        dao::Recordset filas = abrir();
        listar(filas);
        for (const Renglon &renglon : antes)
            if (const int fila = filaDe(renglon.id); fila >= 0)
                List1.setCurrentRow(fila, QItemSelectionModel::Select);
    }
    if (!antes.empty() && elegidos().empty())
        mostrar(nullptr);
}

/// A filter may have left the row out; the fields then keep what they show.
void Catalogo::elegirFila(qint64 id)
{
    const int fila = filaDe(id);
    if (fila < 0)
        return;
    const bool varios = List1.selectionMode() == QAbstractItemView::ExtendedSelection;
    {
        const QSignalBlocker silencio(List1);
        List1.setCurrentRow(fila, varios ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect);
    }
    elegir();
}

/// A row that the focus alone has made the current one is not chosen.
void Catalogo::elegir()
{
    const QListWidgetItem *renglon = List1.currentItem();
    if (!renglon || !renglon->isSelected())
        return;
    dao::Recordset filas = abrir();
    filas.seek(u"=", renglon->text());
    mostrar(filas.noMatch() ? nullptr : &filas);
    if (filas.noMatch()) // deleted meanwhile, or without a name
        mDato(0).setText(renglon->text());
}

void Catalogo::mostrar(dao::Recordset *fila)
{
    int indice = 0;
    for (const Campo &campo : tabla_.campos) {
        const basic::Value valor = fila ? (*fila)[campo.columna].value() : basic::Value();
        mDato(indice++).setText(valor.isNull() ? vacio : valor.text());
    }
}

void Catalogo::aceptar()
{
    answer(mDato(0).text());
}

void Catalogo::escribir(dao::Recordset &fila)
{
    int indice = 0;
    for (const Campo &campo : tabla_.campos)
        fila[campo.columna] = oVacio(mDato(indice++).text().trimmed());
}

/// The row of the name as it stands in the field, which may have come with blanks around it, or else without
/// them, as this window stores it: without a name as "-".
dao::Recordset Catalogo::buscarFila() const
{
    dao::Recordset filas = abrir();
    filas.seek(u"=", mDato(0).text());
    if (filas.noMatch())
        filas.seek(u"=", oVacio(nombre()));
    return filas;
}

void Catalogo::guardar()
{
    dao::Recordset filas = buscarFila();
    const bool nueva = filas.noMatch();
    nueva ? filas.addNew() : filas.edit();
    escribir(filas);
    filas.update();
    if (nueva)
        filas.setBookmark(filas.lastModified());
    const qint64 id = filas[tabla_.id].integer();
    // The row that the fields came from gives its place in the choice to the one they were saved in, which a
    // filter may leave out.
    if (QListWidgetItem *origen = List1.currentItem()) {
        const QSignalBlocker silencio(List1);
        origen->setSelected(false);
    }
    llenar();
    mostrar(&filas); // as it was stored, in the list or not
    elegirFila(id);
}

void Catalogo::quitar()
{
    if (nombre().isEmpty()) {
        MODULE11::MuestraError(u"Elija en la lista lo que quiere quitar."_s);
        markWrong(mDato(0), u"Falta el nombre"_s);
        return;
    }
    if (!MODULE11::PreguntaSiBorra(tabla_.preguntaDeBaja))
        return;
    dao::Recordset filas = buscarFila();
    if (!filas.noMatch())
        filas.deleteRow();
    trasBorrar();
}

void Catalogo::trasBorrar()
{
    llenar();
    mostrar(nullptr);
}

} // namespace records

#include "moc_catalogo.cpp"
