#include "core/service/panGArchivos.h"

#include "core/service/archivos.h"
#include "core/service/panSQL.h"
#include "core/service/seleccion.h"
#include "core/services/criterio.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace
{

constexpr int tablasEnLista = 25;
constexpr int letra = 7, masAngosta = 90, masAncha = 260; ///< of a column of texts, in pixels

/// As wide as its texts may be, within reason; the others as their heading is.
int ancho(const dao::FieldDef &campo)
{
    switch (campo.type) {
    case dao::FieldType::Text:
        return std::clamp(campo.size * letra, masAngosta, masAncha);
    case dao::FieldType::Memo:
        return masAncha;
    default:
        return 0;
    }
}

/// A column without one is chosen by its first entry, which is blank.
void ofrecer(ComboBox &combo, const std::vector<dao::FieldDef> &campos)
{
    combo.clear();
    combo.addItem({});
    for (const dao::FieldDef &campo : campos)
        combo.addItem(campo.name);
    combo.setCurrentIndex(0);
}

QString cifra(qint64 numero)
{
    return basic::format(numero, u"###,###,##0");
}

} // namespace

panGArchivos::panGArchivos() : Form(u"panGArchivos"_s)
{
    setWindowTitle(u"Gestión de Archivos"_s);
    Combo3.addItems(seleccion::comparaciones());
    Combo3.setCurrentIndex(0);
    for (ComboBox *combo : {&Combo1, &Combo2, &Combo4})
        combo->setMaxVisibleItems(tablasEnLista);
    DBGrid1.setCountsLater(true);
    DBGrid1.setSource(Data1, {});
    disponer();
    conectar();
    habilitar();
}

void panGArchivos::disponer()
{
    for (ComboBox *combo : {&Combo1, &Combo2, &Combo4})
        combo->setMinimumWidth(200);
    Label1.setMinimumWidth(220);
    Label1.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setContents(
        this,
        Column{
            Row{Fields{{u"&Tabla :"_s, Combo1}}, Fields{{u"&Orden :"_s, Combo2}}, Stretch(), Check1, Check2},
            Group(u"Filtro"_s, Row{Fields{{u"Ca&mpo :"_s, Combo4}}, Fields{{u"Com&paración :"_s, Combo3}},
                                   Expanding(Fields{{u"Va&lor :"_s, Text1}}), Command1, Command2}),
            Expanding(DBGrid1),
            Row{Command3, Command4, Stretch(), Label1, Space(16), Command5},
        });
    resize(1060, 600);
}

void panGArchivos::conectar()
{
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &panGArchivos::elegirTabla);
    connect(&Text1, &QLineEdit::returnPressed, this, &panGArchivos::ver);
    connect(&Check1, &QCheckBox::toggled, &DBGrid1, &DBGrid::setEditable);
    connect(&Check2, &QCheckBox::toggled, this, &panGArchivos::habilitar);
    connect(&Command1, &QPushButton::clicked, this, &panGArchivos::ver);
    connect(&Command2, &QPushButton::clicked, this, &panGArchivos::verTodo);
    connect(&Command3, &QPushButton::clicked, this, &panGArchivos::borrar);
    connect(&Command4, &QPushButton::clicked, this, &panGArchivos::editarSql);
    connect(&Command5, &QPushButton::clicked, this, &panGArchivos::unload);
    connect(&Data1, &Data::reposition, this, &panGArchivos::mostrarPosicion);
    connect(&DBGrid1, &DBGrid::rowsCounted, this, &panGArchivos::mostrarPosicion);
    auto *suprimir = new QShortcut(QKeySequence::Delete, &DBGrid1, nullptr, nullptr, Qt::WidgetShortcut);
    connect(suprimir, &QShortcut::activated, &Command3, &QAbstractButton::click);
}

void panGArchivos::load()
{
    Combo1.addItems(archivos::tablas());
    Combo1.setCurrentIndex(-1);
}

void panGArchivos::activate()
{
    if (Combo1.currentIndex() < 0)
        Combo1.setFocus();
}

void panGArchivos::elegirTabla()
{
    if (Combo1.currentIndex() < 0)
        return;
    const dao::TableDef definicion = BaseDatos.tableDef(tabla());
    ofrecer(Combo2, definicion.fields());
    ofrecer(Combo4, definicion.fields());
    Text1.clear();
    mostrar(seleccion::consulta(tabla(), {}, {}));
}

void panGArchivos::ver()
{
    if (Combo1.currentIndex() < 0) {
        MODULE11::MuestraError(u"Elija antes la tabla."_s);
        return;
    }
    clearWrong(Text1);
    QString criterio;
    if (!Combo4.value().isEmpty() && !Text1.text().isEmpty()) {
        const dao::TableDef definicion = BaseDatos.tableDef(tabla());
        const dao::FieldDef &campo = *definicion.field(Combo4.value());
        const auto escrito = seleccion::criterio(campo, Combo3.value(), Text1.text());
        if (!escrito) {
            MODULE11::MuestraError(services::loQuePide(campo));
            markWrong(Text1, services::loQuePide(campo));
            return;
        }
        criterio = *escrito;
    }
    mostrar(seleccion::consulta(tabla(), criterio, Combo2.value()));
}

void panGArchivos::verTodo()
{
    if (Combo1.currentIndex() < 0)
        return;
    clearWrong(Text1);
    Combo2.setCurrentIndex(0);
    Combo4.setCurrentIndex(0);
    Text1.clear();
    mostrar(seleccion::consulta(tabla(), {}, {}));
}

/// A text of one's own reaches no further than the list of tables does.
void panGArchivos::editarSql()
{
    panSQL editor(BaseDatos.tableDef(tabla()), Data1.recordSource());
    editor.showModal();
    if (editor.tag() != u"SI")
        return;
    bool alcanza = false;
    try {
        alcanza = archivos::alcanza(editor.sql());
    } catch (const dao::Error &error) {
        MODULE11::MuestraError(error.description());
        return;
    }
    if (alcanza)
        mostrar(editor.sql());
    else
        MODULE11::MuestraError(u"La consulta pide una tabla que no está en la lista."_s);
}

/// A selection that cannot be shown leaves the rows that were in sight.
void panGArchivos::mostrar(const QString &sql)
{
    const QString antes = Data1.recordSource();
    const qint64 fila = Data1.hasRow() ? Data1.recordset().absolutePosition() : -1;
    MODULE11::RelojEspera();
    try {
        Data1.setRecordSource(sql);
        Data1.refresh();
        mostrarColumnas();
        MODULE11::RelojNormal();
    } catch (const basic::Error &error) {
        MODULE11::RelojNormal();
        MODULE11::MuestraError(error.description());
        volverA(antes, fila);
    }
}

void panGArchivos::volverA(const QString &sql, qint64 fila)
{
    Data1.setRecordSource(sql);
    if (sql.isEmpty())
        return;
    Data1.refresh();
    mostrarColumnas();
    if (fila >= 0 && Data1.recordset().hasRow(fila))
        Data1.change([fila](dao::Recordset &filas) { filas.setAbsolutePosition(fila); });
}

void panGArchivos::mostrarColumnas()
{
    std::vector<GridColumn> columnas;
    for (const dao::FieldDef &campo : Data1.recordset().fields())
        columnas.push_back({campo.name, campo.name, {}, ancho(campo)});
    DBGrid1.setSource(Data1, columnas);
    mostrarPosicion();
}

/// While the rows of a large table are being counted only the place is known.
void panGArchivos::mostrarPosicion()
{
    const bool hay = Data1.hasRow();
    const QString lugar = cifra(hay ? Data1.recordset().absolutePosition() + 1 : 0);
    const QString todas = !Data1.hasRecordset()  ? cifra(0)
                          : DBGrid1.allCounted() ? cifra(Data1.recordset().rowCount())
                                                 : u"…"_s;
    Label1.setCaption(lugar + u" de "_s + todas + u" registros."_s);
    habilitar();
}

void panGArchivos::habilitar()
{
    const bool hayTabla = Combo1.currentIndex() >= 0;
    for (QWidget *control : std::initializer_list<QWidget *>{&Combo2, &Combo4, &Text1, &Command1, &Command2,
                                                             &Command4, &Check1, &Check2})
        control->setEnabled(hayTabla);
    Command3.setEnabled(Check2.isChecked() && tablaDeLasFilas() && Data1.hasRow() &&
                        Data1.recordset().updatable());
}

/// Of a row put together from several tables nobody could tell what a deletion takes.
std::optional<QString> panGArchivos::tablaDeLasFilas() const
{
    const QString sql = Data1.recordSource();
    const QStringList tablas = sql.isEmpty() ? QStringList() : dao::tablesNamed(sql);
    return tablas.size() == 1 ? std::optional(tablas.first()) : std::nullopt;
}

void panGArchivos::borrar()
{
    const qint64 fila = Data1.recordset().absolutePosition();
    if (!MODULE11::PreguntaSiBorra(u"Elimina este registro de la tabla %1"_s.arg(*tablaDeLasFilas())))
        return;
    Data1.deleteRow();
    if (fila > 0 && Data1.hasRow()) // beside the one that went
        Data1.change([fila](dao::Recordset &filas) {
            filas.setAbsolutePosition(filas.hasRow(fila) ? fila : fila - 1);
        });
}

#include "moc_panGArchivos.cpp"
