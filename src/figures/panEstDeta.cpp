#include "figures/panEstDeta.h"

#include "core/services/criterio.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "figures/criterios.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace
{

/// Who uses the program, and what was done with it, is nobody's statistics.
const QStringList deServicio = {u"Usuarios"_s, u"Eventos"_s, u"Niveles"_s};
constexpr int valoresQueSeOfrecen = 300, anchoDeColumna = 120;

QString registros(qint64 cuantos)
{
    return basic::format(cuantos, u"###,###,##0") + u" registros."_s;
}

} // namespace

panEstDeta::panEstDeta() : Form(u"panEstDeta"_s)
{
    setWindowTitle(u"Estadística detallada sobre registros"_s);
    Label1.setCaption(
        u"Utilice esta ventana para filtrar y analizar información referente a la información de sus pacientes o los datos generados en la consulta a los mismos."_s);
    Label1.setWordWrap(true);
    Combo2.addItems({u"="_s, u"LIKE"_s, u">"_s, u"<"_s, u">="_s, u"<="_s, u"<>"_s});
    Combo2.setCurrentIndex(0);
    Combo3.setEditable(true);
    Combo4.setMaxVisibleItems(25);
    Combo1.setMaxVisibleItems(25);
    Command8.setEnabled(false);
    disponer();
    connect(&Combo4, &QComboBox::currentIndexChanged, this, &panEstDeta::elegirTabla);
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &panEstDeta::elegirCampo);
    connect(&Command1, &QPushButton::clicked, this, &panEstDeta::agregarCriterio);
    connect(&Command2, &QPushButton::clicked, this, [this] { agregarConector(criterios::y); });
    connect(&Command3, &QPushButton::clicked, this, [this] { agregarConector(criterios::o); });
    connect(&Command4, &QPushButton::clicked, this, [this] { agregarConector(criterios::peroNo); });
    connect(&Command5, &QPushButton::clicked, this, &panEstDeta::ejecutar);
    connect(&Command6, &QPushButton::clicked, this, [this] {
        qDeleteAll(List1.selectedItems());
        mostrarEstado();
    });
    connect(&Command7, &QPushButton::clicked, this, &panEstDeta::unload);
}

void panEstDeta::disponer()
{
    const Item pregunta =
        Column{Fields{{u"Seleccione &tabla a realizar consulta :"_s, Combo4}}, Label2,
               Fields{{u"&Sobre el campo :"_s, Combo1}, {u"&que sea :"_s, Combo2}, {u"&a :"_s, Combo3}},
               Row{Command1, Stretch()}, Stretch()};
    const Item filtro =
        Column{Expanding(List1), Row{Command2, Command3, Command4, Stretch(), Command6}, Command8};
    List1.setMinimumHeight(90);
    setContents(this, Column{Label1, Row{Expanding(pregunta), Expanding(filtro)},
                             Row{Command5, Label3, Stretch()}, Expanding(DBGrid1), Row{Stretch(), Command7}});
    resize(1020, 620);
}

void panEstDeta::load()
{
    for (const QString &tabla : BaseDatos.tableNames())
        if (!deServicio.contains(tabla, Qt::CaseInsensitive))
            Combo4.addItem(tabla);
    Combo4.setCurrentIndex(-1);
}

/// Criteria over the columns of another table say nothing here.
void panEstDeta::elegirTabla()
{
    if (Combo4.currentIndex() < 0)
        return;
    tabla_ = BaseDatos.tableDef(Combo4.value());
    total_ = BaseDatos.openRecordset(u"Select count(*) from [%1]"_s.arg(Combo4.value()))[0].integer();
    Label2.setCaption(u"Sobre un total de "_s + registros(total_));
    Label3.setCaption({});
    List1.clear();
    Data1.close();
    Combo1.clear();
    for (const dao::FieldDef &campo : tabla_.fields())
        Combo1.addItem(campo.name);
    Combo1.setCurrentIndex(-1);
    Combo3.clear();
    mostrarEstado();
}

const dao::FieldDef *panEstDeta::campoElegido() const
{
    return Combo1.currentIndex() < 0 ? nullptr : tabla_.field(Combo1.value());
}

/// The first values found are offered; any other is typed.
void panEstDeta::elegirCampo()
{
    Combo3.clear();
    const dao::FieldDef *campo = campoElegido();
    if (!campo || campo->type == dao::FieldType::Memo)
        return;
    QStringList valores;
    for (dao::Recordset fila = BaseDatos.openRecordset(
             u"Select distinct top %1 [%2] from [%3] where not ([%2] is null)"_s.arg(valoresQueSeOfrecen)
                 .arg(campo->name, Combo4.value()));
         !fila.eof(); fila.moveNext())
        valores += fila[0].text();
    std::ranges::sort(valores,
                      [](const QString &a, const QString &b) { return a.localeAwareCompare(b) < 0; });
    Combo3.addItems(valores);
    Combo3.setCurrentIndex(-1);
}

void panEstDeta::agregarCriterio()
{
    const dao::FieldDef *campo = campoElegido();
    if (!campo || Combo2.currentIndex() < 0)
        return;
    const auto linea = services::criterio(*campo, Combo2.value(), Combo3.currentText());
    if (!linea) {
        const QString motivo = services::loQuePide(*campo);
        MODULE11::MuestraError(motivo);
        markWrong(Combo3, motivo);
        return;
    }
    List1.addLine(*linea);
    mostrarEstado();
}

void panEstDeta::agregarConector(const QString &conector)
{
    const QStringList lineas = List1.lines();
    if (!lineas.isEmpty() && criterios::esConector(lineas.last()))
        return;
    List1.addLine(conector);
    mostrarEstado();
}

void panEstDeta::mostrarEstado()
{
    const QStringList lineas = List1.lines();
    Command8.setText(lineas.isEmpty() ? u"Ultimo criterio de filtro"_s
                                      : u"Ultimo criterio de filtro: "_s + lineas.last());
}

void panEstDeta::ejecutar()
{
    const QString condicion = criterios::condicion(List1.lines());
    if (condicion.isEmpty() || Combo4.currentIndex() < 0) {
        MODULE11::MuestraError(u"Debe realizar criterios de filtro"_s);
        return;
    }
    Data1.setRecordSource(u"Select * from [%1] where %2"_s.arg(Combo4.value(), condicion));
    Data1.refresh();
    std::vector<GridColumn> columnas;
    for (const dao::FieldDef &campo : tabla_.fields())
        columnas.push_back({campo.name, campo.name,
                            campo.type == dao::FieldType::Date ? u"dd/mm/yyyy"_s : QString(),
                            anchoDeColumna});
    DBGrid1.setSource(Data1, columnas);
    Label3.setCaption(u"Se hallaron %1 sobre un total de %2"_s.arg(registros(Data1.recordset().rowCount()),
                                                                   registros(total_)));
}

#include "moc_panEstDeta.cpp"
