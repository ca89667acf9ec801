#include "clinical/patients/hc.h"

#include "platform/basic/runtime.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;
using clinical::Campo;
using clinical::PanelDePruebas;

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

constexpr Campo memosDeAntecedentes[] = {
    {"Antecedentes Infancia", "Infancia :"},       {"Antecedentes Pubertad", "Pubertad :"},
    {"Antecedentes Edad Adulta", "Edad adulta :"}, {"Antecedentes Profesion", "Profesión :"},
    {"Antecedentes Padres", "Padres :"},           {"Antecedentes Colaterales", "Colaterales :"},
    {"Antecedentes Abuelos", "Abuelos :"}};
constexpr Campo ambienteIzquierda[] = {{"Colchon", "Colchón :"},       {"Almohada", "Almohada :"},
                                       {"Cortinados", "Cortinados :"}, {"Pieles", "Pieles :"},
                                       {"Paredes", "Paredes :"},       {"Pisos", "Pisos :"},
                                       {"Alfombras", "Alfombras :"},   {"Calefaccion", "Calefacción :"}};
constexpr Campo ambienteDerecha[] = {{"Insecticidas", "Insecticidas :"},
                                     {"Barrido", "Barrido :"},
                                     {"Perfumes", "Perfumes :"},
                                     {"Cosmeticos y tinturas", "Cosméticos y tinturas :"},
                                     {"Vecindad", "Vecindad :"},
                                     {"Cambios Atmosfericos", "Cambios atmosféricos :"},
                                     {"Agentes Fisicos", "Agentes físicos :"},
                                     {"Factores Psicologicos", "Factores psicológicos :"}};
constexpr Campo animales[] = {
    {"Caballos", "Caballos"}, {"Perros", "Perros"}, {"Gatos", "Gatos"}, {"Aves", "Aves"}};
constexpr Campo caracteres[] = {{"Caracter Permanente", "Permanente"},
                                {"Caracter Paroxistica", "Paroxística"},
                                {"Caracter Estacional", "Estacional"}};
constexpr Campo alergias[] = {
    {"AlCon", "Contactantes"}, {"AlIn", "Inhalantes"}, {"AlAl", "Alimentos"}, {"AlMed", "Medicamentos"}};
constexpr Campo diagnosticos[] = {{"Diag Inhalantes", "Inhalantes"},   {"Diag Alimenticio", "Alimenticio"},
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

hc::hc()
    : FichaDelPaciente(u"hc"_s, u"Gestión Alergias"_s, u"Antecedentes Personales"_s, u"Paciente"_s,
                       u"Antecedente is null"_s)
{
    setContents(this, Column{
                          lblPaciente,
                          Expanding(Tabs(SSTab1, {{u"&Antecedentes"_s, armarAntecedentes()},
                                                  {u"A&mbiente"_s, armarAmbiente()},
                                                  {u"&Diagnóstico"_s, armarDiagnostico()},
                                                  {u"&Pruebas"_s, armarPruebas()}})),
                          Row{Stretch(), Command3},
                      });
    resize(860, 620);
    connect(&Command3, &QPushButton::clicked, this, &hc::unload);
}

Item hc::casilla(const Campo &campo)
{
    CheckBox &control = Check1.add(Check1.size(), QString::fromUtf8(campo.caption));
    Data1.bind(control, QString::fromUtf8(campo.columna));
    return control;
}

FieldRow hc::renglon(const Campo &campo)
{
    TextBox &control = Text1.add(Text1.size(), 100);
    Data1.bind(control, QString::fromUtf8(campo.columna));
    return {QString::fromUtf8(campo.caption), control};
}

FieldRow hc::memo(const Campo &campo)
{
    MemoBox &control = Text2.add(Text2.size());
    control.setMinimumHeight(44);
    Data1.bind(control, QString::fromUtf8(campo.columna));
    return {QString::fromUtf8(campo.caption), control};
}

Item hc::armarAntecedentes()
{
    return Column{
        Group(u"Carácter de la enfermedad"_s,
              Column{fila(caracteres),
                     Fields{renglon({"Caracter de la enfermedad", "Carácter de la enfermedad :"})}}),
        Group(u"Alérgico a"_s, fila(alergias)),
        Group(u"Antecedentes"_s, Fields(todos(memosDeAntecedentes, &hc::memo))),
    };
}

Item hc::armarAmbiente()
{
    return Column{
        Group(u"Vivienda y hábitos"_s, Row{Fields(todos(ambienteIzquierda, &hc::renglon)),
                                           Fields(todos(ambienteDerecha, &hc::renglon))}),
        Group(u"Animales"_s, fila(animales)),
        Stretch(),
    };
}

Item hc::armarDiagnostico()
{
    std::vector<Item> columnas[3];
    int indice = 0;
    for (const Campo &campo : diagnosticos)
        columnas[indice++ % 3].push_back(casilla(campo));
    return Column{
        Group(u"Diagnóstico"_s, Row{Column(columnas[0]), Column(columnas[1]), Column(columnas[2])}),
        Stretch(),
    };
}

/// Check boxes side by side.
Item hc::fila(std::span<const Campo> campos)
{
    std::vector<Item> casillas;
    for (const Campo &campo : campos)
        casillas.push_back(casilla(campo));
    casillas.push_back(Stretch());
    return Row(std::move(casillas));
}

std::vector<FieldRow> hc::todos(std::span<const Campo> campos, FieldRow (hc::*renglonDe)(const Campo &))
{
    std::vector<FieldRow> renglones;
    for (const Campo &campo : campos)
        renglones.push_back((this->*renglonDe)(campo));
    return renglones;
}

Item hc::armarPruebas()
{
    int grilla = 0;
    for (const Panel &panel : paneles) {
        PanelDePruebas &control = Grid1.add(grilla);
        connect(&control, &PanelDePruebas::pulsada, this,
                [this, grilla](const QString &columna) { alternar(grilla, columna); });
        SSTab2.addTab(&control, QString::fromUtf8(panel.titulo));
        ++grilla;
    }
    return SSTab2;
}

void hc::filaLeida()
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
