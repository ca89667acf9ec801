#include "practice/affiliates/panPruebaImport.h"

#include "platform/forms/layout.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;

panPruebaImport::panPruebaImport(const afiliados::Mapa &mapa, const std::vector<QStringList> &lineas,
                                 const QString &resumen)
    : Form(u"panPruebaImport"_s)
{
    setWindowTitle(u"Prueba de la importación"_s);
    Grid1.setObjectName(u"Grid1"_s);
    Grid1.setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1.setTabKeyNavigation(false);
    Grid1.setColumnCount(static_cast<int>(mapa.campos.size()));
    Grid1.setRowCount(static_cast<int>(lineas.size()));
    QStringList titulos;
    for (const afiliados::Campo &campo : mapa.campos)
        titulos += campo.columna;
    Grid1.setHorizontalHeaderLabels(titulos);
    for (int fila = 0; fila < Grid1.rowCount(); ++fila)
        for (int columna = 0; columna < Grid1.columnCount(); ++columna)
            Grid1.setItem(fila, columna,
                          new QTableWidgetItem(lineas[static_cast<std::size_t>(fila)].at(columna)));
    Grid1.resizeColumnsToContents();
    txResumen.setReadOnly(true);
    txResumen.setPlainText(resumen);
    setContents(this, Column{
                          Expanding(Above(u"&Primeras líneas :"_s, Grid1), 3),
                          Expanding(Above(u"&Qué pasaría :"_s, txResumen), 2),
                          Row{Stretch(), Command1},
                      });
    resize(900, 560);
    connect(&Command1, &QPushButton::clicked, this, &panPruebaImport::unload);
}

#include "moc_panPruebaImport.cpp"
