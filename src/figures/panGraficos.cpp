#include "figures/panGraficos.h"

#include "core/security/niveles.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "figures/evolucionAnual.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;
using figures::Nombrado;

namespace
{

constexpr int aniosHaciaAtras = 10;
const QStringList edades = {u"Todas"_s,
                            u"hasta 1 año"_s,
                            u"de 1 a 3 años"_s,
                            u"de 4 a 6 años"_s,
                            u"de 7 a 10 años"_s,
                            u"de 11 a 14 años"_s,
                            u"de 15 a 18 años"_s,
                            u"de 19 a 25 años"_s,
                            u"de 26 a 38 años"_s,
                            u"de 39 a 50 años"_s,
                            u"de 51 a 60 años"_s,
                            u"de 61 años en adelante"_s,
                            u"Mayores de 16 años"_s,
                            u"Menores de 16 años"_s,
                            u"Mayores de 40 años"_s};
const QStringList tipos = {u"1 - Torta 2D"_s,   u"2 - Torta 3D"_s, u"3 - Barras 2D"_s,
                           u"4 - Barras 3D"_s,  u"5 - Gantt"_s,    u"6 - Lineas"_s,
                           u"7 - Log/Lineas"_s, u"8 - Areas"_s,    u"9 - Puntos / Scatter"_s,
                           u"10- Polar"_s,      u"11- HLC"_s};

} // namespace

panGraficos::panGraficos() : Form(u"panGraficos"_s)
{
    setWindowTitle(u"Gráfico cuántico demostrativo anual"_s);
    for (const figures::Origen &origen : figures::origenes())
        Combo5.addItem(QString::fromUtf8(origen.titulo));
    Combo2.addItems(edades);
    Combo2.setToolTip(u"El gráfico cuenta todas las edades"_s);
    Combo4.addItems({u"Ambos"_s, u"Varones"_s, u"Mujeres"_s});
    Combo6.addItems(tipos);
    Combo1.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Combo1.setMinimumContentsLength(24);
    Combo1.setMaxVisibleItems(25);
    Command2.setToolTip(u"Leer de nuevo la lista"_s);
    Command2.setAccessibleName(u"Actualizar"_s);
    const Item filtros = Column{Fields{{u"&Origen de Datos :"_s, Combo5},
                                       {u"&Seleccionar..."_s, Row{Expanding(Combo1), Command2}},
                                       {u"&Edades a filtrar :"_s, Combo2},
                                       {u"Se&xo a filtrar :"_s, Combo4},
                                       {u"&Año a mostrar :"_s, Combo3},
                                       {u"&Tipo Gráfico :"_s, Combo6}},
                                Command1, Stretch()};
    setContents(this, Column{Expanding(Row{filtros, Expanding(Graph1)}),
                             Row{Command3, Command4, Stretch(), Command5}});
    Command3.setEnabled(false);
    Command4.setEnabled(false);
    resize(1060, 540);
    connect(&Combo5, &QComboBox::currentIndexChanged, this, &panGraficos::llenarItems);
    connect(&Command1, &QPushButton::clicked, this, &panGraficos::mostrar);
    connect(&Command2, &QPushButton::clicked, this, &panGraficos::llenarItems);
    connect(&Command3, &QPushButton::clicked, this, [this] { Graph1.imprimir(); });
    connect(&Command4, &QPushButton::clicked, this, [this] { Graph1.guardar(); });
    connect(&Command5, &QPushButton::clicked, this, &panGraficos::unload);
    connect(&Graph1, &figures::Grafico::elegido, this, &panGraficos::listar);
}

void panGraficos::load()
{
    const int esteAnio = basic::today().date().year();
    const basic::Value primera = MODULE11::BuscaCampo(
        u"Select top 1 Fecha from Consulta where not (Fecha is null) order by Fecha"_s, u"Fecha");
    const int primerAnio = primera.isNull() ? esteAnio : primera.date().date().year();
    for (int anio = esteAnio; anio > esteAnio - aniosHaciaAtras || anio >= primerAnio; --anio)
        Combo3.addItem(QString::number(anio));
    for (ComboBox *lista : {&Combo2, &Combo3, &Combo4})
        lista->setCurrentIndex(0);
    Combo6.setCurrentIndex(2);
}

void panGraficos::llenarItems()
{
    if (Combo5.currentIndex() < 0)
        return;
    const auto que = static_cast<Nombrado>(Combo5.currentIndex());
    Combo1.clear();
    if (figures::pideDerechoDeClasificacion(que) && !MODULE11::VerificaNivel(u"IngresarACie10"_s))
        return;
    MODULE11::LlenaLista(Combo1,
                         u"Select Descripcion from %1 order by Descripcion"_s.arg(figures::tablaDe(que)),
                         u"Descripcion");
    Combo1.setCurrentIndex(-1);
}

QString panGraficos::sexo() const
{
    return Combo4.currentIndex() == 1 ? u"Varon"_s : Combo4.currentIndex() == 2 ? u"Mujer"_s : QString();
}

void panGraficos::mostrar()
{
    if (Combo1.currentIndex() < 0) {
        MODULE11::MuestraError(u"Debe seleccionar el ítem en cuestión "_s);
        return;
    }
    const int tipo = Combo6.value().left(2).trimmed().toInt();
    if (tipo < 1 || tipo > tipos.size()) {
        MODULE11::MuestraError(u"Seleccionó mal en tipo de grafico"_s);
        return;
    }
    const Mostrado pedido{static_cast<Nombrado>(Combo5.currentIndex()), Combo1.value(), sexo(),
                          Combo3.value().toInt()};
    const auto veces = figures::vecesPorMes(pedido.que, pedido.item, pedido.anio, pedido.sexo);
    figures::Figura figura{
        u"Gráfico cuántico Anual de %1 : %2 del año %3"_s.arg(Combo5.value(), pedido.item, Combo3.value()),
        {},
        u"Mes"_s,
        u"Veces"_s,
        {}};
    int mes = 1;
    for (const qint64 cuantas : veces)
        figura.datos.push_back({QString::number(mes++), static_cast<double>(cuantas)});
    Graph1.mostrar(std::move(figura), static_cast<figures::Tipo>(tipo));
    mostrado_ = pedido;
    Command3.setEnabled(true);
    Command4.setEnabled(true);
}

void panGraficos::listar(int mes)
{
    if (mostrado_)
        MODULE11::MuestraListado(
            figures::visitasDelMes(mostrado_->que, mostrado_->item, mostrado_->anio, mes + 1,
                                   mostrado_->sexo),
            u"%1 - %2 de %3"_s.arg(mostrado_->item, MODULE11::NombreMes(mes + 1)).arg(mostrado_->anio));
}

#include "moc_panGraficos.cpp"
