#include "practice/tariffs/panAumento.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Redondeo {
    const char *texto;
    int centavos;
};
constexpr Redondeo redondeos[] = {
    {"al centavo", 1}, {"al peso", 100}, {"a los 10 pesos", 1000}, {"a los 100 pesos", 10000}};

constexpr double mayorPorcentaje = 1000, menorPorcentaje = -100;

} // namespace

panAumento::panAumento() : Form(u"panAumento"_s)
{
    setWindowTitle(u"Aumento de aranceles"_s);
    txtPorcentaje.setMaximumWidth(90);
    for (const Redondeo &redondeo : redondeos)
        cbRedondeo.addItem(QString::fromUtf8(redondeo.texto), redondeo.centavos);
    cbRedondeo.setCurrentIndex(0);
    std::vector<Item> precios;
    for (int i = 0; const QString &campo : tarifas::precios()) {
        CheckBox &precio = Check1.add(i++, campo);
        precio.setChecked(true);
        precios.emplace_back(precio);
        connect(&precio, &QCheckBox::toggled, this, &panAumento::mostrar);
    }
    setContents(this, Column{
                          Row{Fields{{u"&Porcentaje :"_s, txtPorcentaje}},
                              Fields{{u"&Redondear :"_s, cbRedondeo}}, Stretch()},
                          Group(u"Qué precios cambian"_s, Grid(3, std::move(precios))),
                          Expanding(DBGrid1),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(900, 560);
    connect(&txtPorcentaje, &QLineEdit::textChanged, this, &panAumento::mostrar);
    connect(&cbRedondeo, &QComboBox::currentIndexChanged, this, &panAumento::mostrar);
    connect(&Command1, &QPushButton::clicked, this, &panAumento::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panAumento::load()
{
    mostrar();
}

std::optional<tarifas::Aumento> panAumento::pedido() const
{
    const std::optional<double> porcentaje = basic::toNumber(txtPorcentaje.text());
    if (!porcentaje || *porcentaje < menorPorcentaje || *porcentaje > mayorPorcentaje)
        return std::nullopt;
    tarifas::Aumento aumento{std::llround(*porcentaje * 100), cbRedondeo.currentData().toInt(), {}};
    for (const auto &[indice, precio] : Check1)
        if (precio->isChecked())
            aumento.campos.push_back(precio->text());
    return aumento;
}

/// The same expression shows the new prices and writes them.
void panAumento::mostrar()
{
    const auto aumento = pedido();
    Command1.setEnabled(aumento && !aumento->campos.empty());
    QString sql = u"Select Codigo, Descripcion"_s;
    std::vector<GridColumn> columnas{{u"Código"_s, u"Codigo"_s, {}, 80},
                                     {u"Descripción"_s, u"Descripcion"_s, {}, 200}};
    for (int i = 0; aumento && i < static_cast<int>(aumento->campos.size()); ++i) {
        const QString &campo = aumento->campos[static_cast<std::size_t>(i)];
        const QString nuevo = u"Nuevo%1"_s.arg(i);
        sql += u", [%1], %2 as %3"_s.arg(campo, aumento->nuevo(campo), nuevo);
        columnas.push_back({campo, campo, u"#,##0.00"_s});
        columnas.push_back({u"Nuevo"_s, nuevo, u"#,##0.00"_s, 90});
    }
    Data1.close();
    DBGrid1.setSource(Data1, std::move(columnas));
    Data1.setRecordSource(sql + u" from Prestaciones order by Descripcion"_s);
    Data1.refresh();
}

void panAumento::aceptar()
{
    const auto aumento = pedido();
    if (!aumento)
        return;
    const qint64 cuantas = Data1.recordset().rowCount();
    if (!MODULE11::PreguntaSiBorra(u"Cambia los precios de %1 prestaciones un %2 %?"_s.arg(
            basic::format(cuantas, u"#,##0"), txtPorcentaje.text().trimmed())))
        return;
    tarifas::aumenta(MODULE11::BaseDatos, *aumento);
    answer(u"SI"_s);
}

#include "moc_panAumento.cpp"
