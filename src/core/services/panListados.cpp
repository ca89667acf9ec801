#include "core/services/panListados.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString errorDeCalculo =
    u"Error de calculo en fórmula, cierre la ventana e intente nuevamente"_s;

using Valores = std::vector<double>;

/// What can be computed over the values of a column; an empty one has no mean and no extremes.
struct Formula {
    const char *nombre;
    double (*calcular)(const Valores &);
    bool necesitaValores;
};

double suma(const Valores &v)
{
    return std::accumulate(v.begin(), v.end(), 0.0);
}

constexpr Formula formulas[] = {
    {"Suma", suma, false},
    {"Promedio", [](const Valores &v) { return suma(v) / static_cast<double>(v.size()); }, true},
    {"Mínimo", [](const Valores &v) { return *std::min_element(v.begin(), v.end()); }, true},
    {"Máximo", [](const Valores &v) { return *std::max_element(v.begin(), v.end()); }, true},
    {"Cantidad", [](const Valores &v) { return static_cast<double>(v.size()); }, false},
};

} // namespace

panListados::panListados(const QString &sql, const QString &titulo) : Form(u"panListados"_s)
{
    setWindowTitle(titulo);
    setTag(titulo);
    forms::setTag(&Data1, titulo);
    Data1.setRecordSource(sql);
    Data1.refresh();
    std::vector<GridColumn> columnas;
    for (const dao::FieldDef &campo : Data1.recordset().fields()) {
        columnas.push_back({campo.name, campo.name});
        Combo2.addItem(campo.name);
    }
    DBGrid1.setSource(Data1, columnas);
    for (const Formula &formula : formulas)
        Combo1.addItem(QString::fromUtf8(formula.nombre));
    setContents(this, Column{
                          Expanding(DBGrid1),
                          Row{Fields{{u"&Fórmula :"_s, Combo1}}, Fields{{u"C&olumna :"_s, Combo2}}, Command1,
                              Label1, Stretch(), Command2},
                      });
    resize(900, 560);
    connect(&Command1, &QPushButton::clicked, this, &panListados::calcular);
    connect(&Command2, &QPushButton::clicked, this, &panListados::unload);
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
        const Formula &formula = formulas[Combo1.currentIndex()];
        dao::Recordset &filas = Data1.recordset();
        Valores valores;
        for (qint64 fila = 0; fila < filas.rowCount(); ++fila) {
            const basic::Value valor = filas.valueAt(fila, Combo2.currentIndex());
            if (valor.isBlank())
                continue;
            if (!valor.isNumeric())
                throw basic::Error(13, u"No coinciden los tipos."_s);
            valores.push_back(valor.number());
        }
        if (formula.necesitaValores && valores.empty())
            throw basic::Error(11, u"División por cero."_s);
        Label1.setCaption(basic::format(formula.calcular(valores), u"###,##0.00"));
    } catch (const basic::Error &) {
        MODULE11::MuestraError(errorDeCalculo);
    }
}

#include "moc_panListados.cpp"
