#include "clinical/patients/hc.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Panel {
    const char *titulo, *prefijo;
};
constexpr Panel paneles[] = {
    {"&Inhalantes", "In "},
    {"Póle&nes", "Po "},
    {"&Bacterias", "Alergia Bact "},
    {"A&limentos", "Alergia Alim "},
    {"Con&tacto", "Alergia Cont "},
    {"&Hongos", "Hongos "},
    {"Medicam&entos", "Alergia Medic "},
    {"In&sectos", "Alergia Insectos "},
};

constexpr const char *memosDeAntecedentes[] = {
    "Antecedentes Infancia", "Antecedentes Pubertad",    "Antecedentes Edad Adulta", "Antecedentes Profesion",
    "Antecedentes Padres",   "Antecedentes Colaterales", "Antecedentes Abuelos",
};
constexpr const char *ambienteIzquierda[] = {"Colchon", "Almohada", "Cortinados", "Pieles",
                                             "Paredes", "Pisos",    "Alfombras",  "Calefaccion"};
constexpr const char *ambienteDerecha[] = {"Insecticidas",    "Barrido",
                                           "Perfumes",        "Cosmeticos y tinturas",
                                           "Vecindad",        "Cambios Atmosfericos",
                                           "Agentes Fisicos", "Factores Psicologicos"};
constexpr const char *animales[] = {"Caballos", "Perros", "Gatos", "Aves"};

/// A check box and what it is called on the screen.
struct Casilla {
    const char *campo, *caption;
};
constexpr Casilla caracteres[] = {{"Caracter Permanente", "Permanente"},
                                  {"Caracter Paroxistica", "Paroxística"},
                                  {"Caracter Estacional", "Estacional"}};
constexpr Casilla alergias[] = {
    {"AlCon", "Contactantes"}, {"AlIn", "Inhalantes"}, {"AlAl", "Alimentos"}, {"AlMed", "Medicamentos"}};
constexpr Casilla diagnosticos[] = {
    {"Diag Inhalantes", "Inhalantes"},   {"Diag Alimenticio", "Alimenticio"},
    {"Diag Endocrino", "Endocrino"},     {"Diag Polenes", "Pólenes"},
    {"Diag Parasitario", "Parasitario"}, {"Diag Insectos", "Insectos"},
    {"Diag Bacteriano", "Bacteriano"},   {"Diag Medicamentos", "Medicamentos"},
    {"Diag Fisicos", "Físicos"},         {"Diag Micologico", "Micológico"},
    {"Diag Contacto", "Contacto"},       {"Diag Autoinmune", "Autoinmune"}};

} // namespace

namespace clinical
{

PanelDePruebas::PanelDePruebas(const QString &name)
{
    setObjectName(name);
    setColumnCount(2);
    setHorizontalHeaderLabels({u"Prueba"_s, u"Resultado"_s});
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    connect(this, &QTableWidget::cellClicked, this, [this](int fila) { emit pulsada(columnas_[fila]); });
}

void PanelDePruebas::mostrar(dao::Recordset &registro, const QStringList &columnas)
{
    columnas_ = columnas;
    setRowCount(static_cast<int>(columnas.size()));
    for (int fila = 0; fila < rowCount(); ++fila) {
        const basic::Value valor = registro[columnas[fila]];
        setItem(fila, 0, new QTableWidgetItem(columnas[fila]));
        setItem(fila, 1, new QTableWidgetItem(valor.isBlank() ? u"-"_s : valor.text()));
    }
}

} // namespace clinical

hc::hc() : Form(u"hc"_s)
{
    setWindowTitle(u"Gestión Alergias"_s);
    setContents(this, Column{
                          Expanding(Tabs(SSTab1, {{u"&Antecedentes"_s, armarAntecedentes()},
                                                  {u"A&mbiente"_s, armarAmbiente()},
                                                  {u"&Diagnóstico"_s, armarDiagnostico()},
                                                  {u"&Pruebas"_s, armarPruebas()}})),
                          Row{Stretch(), Command3},
                      });
    resize(860, 600);
    connect(&Command3, &QPushButton::clicked, this, &hc::unload);
}

Item hc::casilla(const QString &campo, const QString &caption)
{
    CheckBox &control = Check1.add(Check1.size(), caption.isEmpty() ? campo : caption);
    Data1.bind(control, campo);
    return control;
}

FieldRow hc::renglon(const QString &campo)
{
    TextBox &control = Text1.add(Text1.size(), 100);
    Data1.bind(control, campo);
    return {campo + u" :"_s, control};
}

FieldRow hc::memo(const QString &campo)
{
    MemoBox &control = Text2.add(Text2.size());
    control.setMinimumHeight(44);
    Data1.bind(control, campo);
    return {campo + u" :"_s, control};
}

Item hc::armarAntecedentes()
{
    std::vector<Item> caracter;
    for (const Casilla &c : caracteres)
        caracter.push_back(casilla(QString::fromUtf8(c.campo), QString::fromUtf8(c.caption)));
    caracter.push_back(Stretch());
    std::vector<Item> alergico;
    for (const Casilla &c : alergias)
        alergico.push_back(casilla(QString::fromUtf8(c.campo), QString::fromUtf8(c.caption)));
    alergico.push_back(Stretch());
    std::vector<FieldRow> memos;
    for (const char *campo : memosDeAntecedentes)
        memos.push_back(memo(QString::fromUtf8(campo)));
    return Column{
        Group(u"Carácter de la enfermedad"_s,
              Column{Row(caracter), Fields{renglon(u"Caracter de la enfermedad"_s)}}),
        Group(u"Alérgico a"_s, Row(alergico)),
        Group(u"Antecedentes"_s, Fields(memos)),
    };
}

Item hc::armarAmbiente()
{
    std::vector<FieldRow> izquierda, derecha;
    for (const char *campo : ambienteIzquierda)
        izquierda.push_back(renglon(QString::fromUtf8(campo)));
    for (const char *campo : ambienteDerecha)
        derecha.push_back(renglon(QString::fromUtf8(campo)));
    std::vector<Item> conviveCon;
    for (const char *campo : animales)
        conviveCon.push_back(casilla(QString::fromUtf8(campo)));
    conviveCon.push_back(Stretch());
    return Column{
        Group(u"Vivienda y hábitos"_s, Row{Fields(izquierda), Fields(derecha)}),
        Group(u"Animales"_s, Row(conviveCon)),
        Stretch(),
    };
}

Item hc::armarDiagnostico()
{
    std::vector<Item> columnas[3];
    int indice = 0;
    for (const Casilla &c : diagnosticos)
        columnas[indice++ % 3].push_back(casilla(QString::fromUtf8(c.campo), QString::fromUtf8(c.caption)));
    return Column{
        Group(u"Diagnóstico"_s, Row{Column(columnas[0]), Column(columnas[1]), Column(columnas[2])}),
        Stretch(),
    };
}

Item hc::armarPruebas()
{
    int grilla = 0;
    for (const Panel &panel : paneles) {
        clinical::PanelDePruebas &control = Grid1.add(grilla);
        connect(&control, &clinical::PanelDePruebas::pulsada, this,
                [this, grilla](const QString &columna) { alternar(grilla, columna); });
        SSTab2.addTab(&control, QString::fromUtf8(panel.titulo));
        ++grilla;
    }
    return SSTab2;
}

void hc::activate()
{
    if (!basic::isNumeric(tag())) {
        MODULE11::Aviso(u"Debe seleccionar un paciente"_s);
        unload();
        return;
    }
    if (Data1.hasRecordset())
        return;
    if (abrirRegistro())
        prepararPruebas();
}

/// What was changed last is written when the window goes.
bool hc::queryUnload()
{
    Data1.updateRecord();
    return true;
}

/// The patient's row, made now if there is none.
bool hc::abrirRegistro()
{
    Data1.setRecordSource(u"Select * from [Antecedentes Personales] where paciente = "_s + tag());
    Data1.refresh();
    if (Data1.recordset().eof()) {
        Data1.change([this](dao::Recordset &registro) {
            registro.addNew();
            registro[u"Paciente"] = tag();
            registro.update();
        });
        Data1.refresh();
    }
    return !Data1.recordset().eof();
}

void hc::prepararPruebas()
{
    int grilla = 0;
    for (const Panel &panel : paneles) {
        const QString prefijo = QString::fromUtf8(panel.prefijo);
        QStringList columnas;
        for (int n = 1;; ++n) {
            const QString columna = prefijo + basic::format(n, u"##");
            if (Data1.recordset().ordinal(columna) < 0)
                break;
            columnas += columna;
        }
        Grid1(grilla++).mostrar(Data1.recordset(), columnas);
    }
}

void hc::alternar(int grilla, const QString &columna)
{
    Data1.change([&](dao::Recordset &registro) {
        const bool positivo = registro[columna].text() == u"SI";
        registro.edit();
        registro[columna] = positivo ? u"-"_s : u"SI"_s;
        registro.update();
    });
    Grid1(grilla).item(Grid1(grilla).currentRow(), 1)->setText(Data1.recordset()[columna].text());
}

#include "moc_hc.cpp"
