#include "practice/stock/panNueMovStock.h"

#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/layout.h"
#include "practice/stock/listaDeArticulos.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cCantidad, cCodigo, cDescripcion, columnas };
const QString una = u"1"_s;

} // namespace

panNueMovStock::panNueMovStock(stock::Sentido sentido, qint64 idProfesional, std::optional<qint64> idArticulo)
    : Form(u"panNueMovStock"_s), sentido_(sentido), idProfesional_(idProfesional), idArticulo_(idArticulo)
{
    setWindowTitle(sentido == stock::Sentido::Entrada ? u"Entrada de artículos"_s : u"Salida de artículos"_s);
    Grid1.setObjectName(u"Grid1"_s);
    Grid1.setColumnCount(columnas);
    Grid1.setHorizontalHeaderLabels({u"Cantidad"_s, u"Código"_s, u"Descripción"_s});
    Grid1.horizontalHeader()->setStretchLastSection(true);
    Grid1.verticalHeader()->hide();
    Grid1.setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1.setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid1.setTabKeyNavigation(false);
    Grid1.setMinimumHeight(200);
    txCant.setText(una);
    txCant.setFixedWidth(90);
    stock::ancho(cbCodigo);
    stock::ancho(cbDescripcion);
    disponer();
    enlazar();
}

void panNueMovStock::disponer()
{
    setContents(this,
                Column{
                    Row{Fields{{u"&Fecha :"_s, dtFecha}}, Fields{{u"&Tipo de movimiento :"_s, cbTipoMov}},
                        Fields{{u"Co&mprobante :"_s, txComprobante}}},
                    Row{Above(u"Có&digo :"_s, cbCodigo), Expanding(Above(u"D&escripción :"_s, cbDescripcion)),
                        Above(u"Ca&ntidad :"_s, txCant)},
                    Row{Stretch(), Command1, Command4},
                    Expanding(Grid1),
                    Row{Stretch(), Command2, Command3},
                });
    resize(760, 480);
}

/// Both lists have the articles in one order: their entries are in step, and two articles of one code stay
/// two.
void panNueMovStock::enlazar()
{
    connect(&cbCodigo, &QComboBox::currentIndexChanged, &cbDescripcion, &QComboBox::setCurrentIndex);
    connect(&cbDescripcion, &QComboBox::currentIndexChanged, &cbCodigo, &QComboBox::setCurrentIndex);
    connect(&txCant, &QLineEdit::editingFinished, this, &panNueMovStock::corregirCantidad);
    connect(&Command1, &QPushButton::clicked, this, &panNueMovStock::agregar);
    connect(&Command2, &QPushButton::clicked, this, &panNueMovStock::aceptar);
    connect(&Command3, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command4, &QPushButton::clicked, this, &panNueMovStock::quitar);
}

void panNueMovStock::load()
{
    services::agregarConClave(cbTipoMov, u"Select * from TipoMovimientos ORDER BY Descripcion"_s,
                              u"Descripcion", u"idTipoMovimiento");
    stock::agregarArticulos(cbDescripcion, idProfesional_, &cbCodigo);
    cbTipoMov.setCurrentIndex(-1);
    cbDescripcion.setCurrentIndex(idArticulo_ ? cbDescripcion.findData(*idArticulo_) : -1);
    cbCodigo.setCurrentIndex(cbDescripcion.currentIndex());
}

void panNueMovStock::corregirCantidad()
{
    if (!stock::cantidad(txCant.text()))
        txCant.setText(una);
}

void panNueMovStock::agregar()
{
    corregirCantidad();
    if (cbDescripcion.currentIndex() < 0) {
        MODULE11::MuestraError(u"Error, debe seleccionar un artículo!"_s);
        cbDescripcion.setFocus();
        return;
    }
    const int fila = Grid1.rowCount();
    Grid1.insertRow(fila);
    auto *cantidad = new QTableWidgetItem(txCant.text());
    cantidad->setData(Qt::UserRole, cbDescripcion.currentData());
    Grid1.setItem(fila, cCantidad, cantidad);
    Grid1.setItem(fila, cCodigo, new QTableWidgetItem(cbCodigo.currentText()));
    Grid1.setItem(fila, cDescripcion, new QTableWidgetItem(cbDescripcion.currentText()));
    Grid1.setCurrentCell(fila, cCantidad);
    txCant.setText(una);
}

void panNueMovStock::quitar()
{
    Grid1.removeRow(Grid1.currentRow());
}

std::vector<stock::Renglon> panNueMovStock::renglones() const
{
    std::vector<stock::Renglon> renglones;
    for (int fila = 0; fila < Grid1.rowCount(); ++fila) {
        const QTableWidgetItem *cantidad = Grid1.item(fila, cCantidad);
        renglones.push_back(
            {cantidad->data(Qt::UserRole).toLongLong(), stock::cantidad(cantidad->text()).value_or(1)});
    }
    return renglones;
}

void panNueMovStock::aceptar()
{
    if (cbTipoMov.currentIndex() < 0 || txComprobante.text().trimmed().isEmpty()) {
        MODULE11::MuestraError(
            u"Error, debe seleccionar un tipo de movimiento y un tipo o nro de comprobante!"_s);
        if (cbTipoMov.currentIndex() < 0)
            cbTipoMov.setFocus();
        else
            txComprobante.setFocus();
        return;
    }
    if (Grid1.rowCount() == 0) {
        MODULE11::MuestraError(u"Error, debe seleccionar un artículo!"_s);
        cbDescripcion.setFocus();
        return;
    }
    stock::registrar({sentido_, dtFecha.value(), cbTipoMov.currentData().toLongLong(),
                      txComprobante.text().trimmed(), renglones()});
    answer(u"SI"_s);
}

#include "moc_panNueMovStock.cpp"
