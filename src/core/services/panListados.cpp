#include "core/services/panListados.h"

#include "core/reports/informes.h"
#include "core/services/orden.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"
#include "platform/forms/wrong.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QShortcut>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int sliceMs = 15; ///< of the work on the totals, so that the window answers
constexpr qint64 filasPorVez = 500;
constexpr int filasQueMiden = 60; ///< the columns are as wide as these ask for
constexpr int columnaMasAncha = 260;

const QString errorDeCalculo = u"Error de calculo en fórmula, cierre la ventana e intente nuevamente"_s;
const QString deImportes = u"###,##0.00"_s;

/// What can be computed over the values of a column; an empty one has no mean and no extremes.
struct Formula {
    const char *nombre;
    reports::Total total;
};
constexpr Formula formulas[] = {{"Suma", reports::Total::Sum},
                                {"Promedio", reports::Total::Mean},
                                {"Mínimo", reports::Total::Least},
                                {"Máximo", reports::Total::Greatest},
                                {"Cantidad", reports::Total::Count}};

/// Whole numbers that name a row of some table are no amounts.
bool esClave(const QString &campo)
{
    return campo.startsWith(u"id", Qt::CaseInsensitive) ||
           campo.compare(u"Numero", Qt::CaseInsensitive) == 0 ||
           campo.compare(u"Paciente", Qt::CaseInsensitive) == 0;
}

bool esImporte(const dao::FieldDef &campo)
{
    switch (campo.type) {
    case dao::FieldType::Currency:
    case dao::FieldType::Double:
        return true;
    case dao::FieldType::Long:
    case dao::FieldType::Integer:
        return !esClave(campo.name);
    default:
        return false;
    }
}

/// A row that another station has deleted counts no more.
basic::Value valorDe(const dao::Recordset &filas, qint64 fila, int columna)
{
    basic::Value valor;
    basic::ignoring({dao::Error::RecordDeleted}, [&] { valor = filas.valueAt(fila, columna); });
    return valor;
}

reports::Figures cifrasDe(const dao::Recordset &filas, int columna)
{
    reports::Figures cifras;
    for (qint64 fila = 0; filas.hasRow(fila); ++fila) {
        const basic::Value valor = valorDe(filas, fila, columna);
        if (!valor.isBlank() && !valor.isNumeric())
            throw basic::Error(13, u"No coinciden los tipos."_s);
        cifras.add(valor);
    }
    return cifras;
}

} // namespace

panListados::panListados(const QString &sql, const QString &titulo) : Form(u"panListados"_s), consulta_(sql)
{
    setWindowTitle(titulo);
    setTag(titulo);
    forms::setTag(&Data1, titulo);
    Data1.setRecordSource(sql);
    Data1.refresh();
    mostrarColumnas();
    for (const Formula &formula : formulas)
        Combo1.addItem(QString::fromUtf8(formula.nombre));
    disponer();
    conectar();
    totalizar();
}

void panListados::mostrarColumnas()
{
    std::vector<GridColumn> columnas;
    for (const dao::FieldDef &campo : Data1.recordset().fields()) {
        const bool dinero = campo.type == dao::FieldType::Currency;
        columnas.push_back({campo.name, campo.name, dinero ? deImportes : QString()});
        Combo2.addItem(campo.name);
        if (esImporte(campo))
            totales_[static_cast<int>(columnas.size()) - 1] = {};
    }
    DBGrid1.setSource(Data1, columnas);
    DBGrid1.horizontalHeader()->setResizeContentsPrecision(filasQueMiden);
    DBGrid1.horizontalHeader()->setSectionsClickable(true);
}

void panListados::disponer()
{
    Text1.setMinimumWidth(220);
    Label2.setWordWrap(true); // a list may have many amounts
    setContents(this, Column{
                          Row{Fields{{u"&Buscar :"_s, Text1}}, Command5, Stretch()},
                          Expanding(DBGrid1),
                          Label2,
                          Row{Fields{{u"&Fórmula :"_s, Combo1}}, Fields{{u"C&olumna :"_s, Combo2}}, Command1,
                              Label1, Stretch(), Command3, Command4, Command2},
                      });
    resize(1000, 600);
}

void panListados::conectar()
{
    connect(DBGrid1.horizontalHeader(), &QHeaderView::sectionClicked, this, &panListados::ordenar);
    connect(&Timer1, &QTimer::timeout, this, &panListados::totalizar);
    connect(&Text1, &QLineEdit::returnPressed, this, &panListados::buscar);
    connect(&Command1, &QPushButton::clicked, this, &panListados::calcular);
    connect(&Command2, &QPushButton::clicked, this, &panListados::unload);
    connect(&Command3, &QPushButton::clicked, this,
            [this] { informes::exportaCsv(reports::listing(Data1.recordset()), windowTitle()); });
    connect(&Command4, &QPushButton::clicked, this,
            [this] { informes::exportaPlanilla(reports::listing(Data1.recordset()), windowTitle()); });
    connect(&Command5, &QPushButton::clicked, this, &panListados::buscar);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, &Text1,
            qOverload<>(&QWidget::setFocus));
}

void panListados::activate()
{
    for (int columna = 0; columna + 1 < DBGrid1.model()->columnCount(); ++columna) {
        DBGrid1.resizeColumnToContents(columna);
        DBGrid1.setColumnWidth(columna, qMin(DBGrid1.columnWidth(columna), columnaMasAncha));
    }
    DBGrid1.setFocus();
}

/// The first click orders upwards, one more on the same heading downwards.
void panListados::ordenar(int columna)
{
    QHeaderView &titulos = *DBGrid1.horizontalHeader();
    const bool descendente = titulos.isSortIndicatorShown() && titulos.sortIndicatorSection() == columna &&
                             titulos.sortIndicatorOrder() == Qt::AscendingOrder;
    Data1.setRecordSource(services::ordenadaPor(consulta_, columna, descendente));
    Data1.refresh();
    titulos.setSortIndicator(columna, descendente ? Qt::DescendingOrder : Qt::AscendingOrder);
    titulos.setSortIndicatorShown(true);
}

/// From the row after the current one round to itself.
void panListados::buscar()
{
    const QString buscado = Text1.text().trimmed();
    const dao::Recordset &filas = Data1.recordset();
    const qint64 cuantas = filas.rowCount();
    if (buscado.isEmpty() || cuantas == 0)
        return;
    const qint64 desde = DBGrid1.currentRow() + 1;
    qint64 paso = 0;
    bool hallada = false;
    const auto fila = [&] { return (desde + paso) % cuantas; };
    forms::Progress avance(u"Se busca en la fila"_s);
    while (!hallada && paso < cuantas) {
        MODULE11::BaseDatos.readTogether([&] {
            for (const qint64 hasta = qMin(paso + filasPorVez, cuantas); paso < hasta; ++paso)
                if ((hallada = contiene(fila(), buscado)))
                    return;
        });
        if (!hallada && !avance.tell(paso, cuantas))
            return;
    }
    Text1.setFound(hallada);
    if (hallada)
        DBGrid1.setCurrentRow(static_cast<int>(fila()));
}

/// As the cells show it.
bool panListados::contiene(qint64 fila, const QString &buscado)
{
    const QAbstractItemModel &celdas = *DBGrid1.model();
    for (int columna = 0; columna < celdas.columnCount(); ++columna)
        if (basic::containsTyped(celdas.index(static_cast<int>(fila), columna).data().toString(), buscado))
            return true;
    return false;
}

void panListados::totalizar()
{
    Timer1.stop();
    const dao::Recordset &filas = Data1.recordset();
    bool quedan = !totales_.empty();
    QElapsedTimer desde;
    desde.start();
    MODULE11::BaseDatos.readTogether([&] {
        while (quedan && desde.elapsed() < sliceMs) {
            quedan = filas.hasRow(sumadas_);
            for (auto &[columna, cifras] : totales_)
                if (quedan)
                    cifras.add(valorDe(filas, sumadas_, columna));
            sumadas_ += quedan;
        }
    });
    mostrarTotales(!quedan);
    if (quedan)
        Timer1.start(1);
}

void panListados::mostrarTotales(bool completos)
{
    const qint64 cuantas = Data1.recordset().rowCount();
    QStringList textos{cuantas == 0 ? u"Sin datos"_s : u"Filas : "_s + basic::format(cuantas, u"#,##0")};
    for (const auto &[columna, cifras] : totales_)
        textos += Combo2.itemText(columna) + u" : "_s +
                  (completos ? basic::format(cifras.total(reports::Total::Sum), deImportes) : u"…"_s);
    Label2.setCaption(textos.join(u"   ·   "));
}

void panListados::calcular()
{
    for (ComboBox *combo : {&Combo1, &Combo2})
        if (combo->currentIndex() < 0) {
            MODULE11::MuestraError(errorDeCalculo);
            markWrong(*combo, u"Elija la fórmula y la columna"_s);
            return;
        }
    try {
        basic::Value resultado;
        MODULE11::BaseDatos.readTogether([&] {
            resultado = cifrasDe(Data1.recordset(), Combo2.currentIndex())
                            .total(formulas[Combo1.currentIndex()].total);
        });
        if (resultado.isBlank())
            throw basic::Error(11, u"División por cero."_s);
        Label1.setCaption(basic::format(resultado, deImportes));
    } catch (const basic::Error &) {
        MODULE11::MuestraError(errorDeCalculo);
    }
}

#include "moc_panListados.cpp"
