#include "paediatrics/vaccines/panVacunasAtrasadas.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "paediatrics/vaccines/cartas.h"
#include "platform/basic/environment.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"
#include "platform/forms/wrong.h"

#include <QHeaderView>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace forms;
using vacunas::Atrasos;

namespace
{

constexpr int altoDelRenglon = 24;
const QString titulo = u"Niños atrasados en sus vacunas"_s;

} // namespace

/// The lines that were found; only those in sight are put into words.
class panVacunasAtrasadas::Lista : public QAbstractTableModel
{
public:
    void tomar(Atrasos atrasos)
    {
        beginResetModel();
        atrasos_ = std::move(atrasos);
        endResetModel();
    }
    const Atrasos &atrasos() const { return atrasos_; }

    int rowCount(const QModelIndex &padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(atrasos_.cuantos());
    }
    int columnCount(const QModelIndex &padre = {}) const override
    {
        return padre.isValid() ? 0 : static_cast<int>(Atrasos::titulos().size());
    }
    QVariant data(const QModelIndex &lugar, int papel) const override
    {
        return papel == Qt::DisplayRole ? atrasos_.valor(lugar.row(), lugar.column()).text() : QVariant();
    }
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override
    {
        return orientacion == Qt::Horizontal && papel == Qt::DisplayRole ? Atrasos::titulos().value(seccion)
                                                                         : QVariant();
    }

private:
    Atrasos atrasos_;
};

panVacunasAtrasadas::panVacunasAtrasadas() : Form(u"panVacunasAtrasadas"_s), lista_(std::make_unique<Lista>())
{
    setWindowTitle(titulo);
    Grid1.setObjectName(u"Grid1"_s);
    Grid1.setModel(lista_.get());
    Grid1.setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid1.setSelectionMode(QAbstractItemView::SingleSelection);
    Grid1.setTabKeyNavigation(false);
    Grid1.setAlternatingRowColors(true);
    Grid1.setWordWrap(false);
    Grid1.verticalHeader()->hide();
    Grid1.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    Grid1.verticalHeader()->setDefaultSectionSize(altoDelRenglon);
    Grid1.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    constexpr int anchos[] = {130, 130, 220, 130, 130, 120};
    int columna = 0;
    for (const int ancho : anchos)
        Grid1.setColumnWidth(columna++, ancho);
    Grid1.horizontalHeader()->setStretchLastSection(true);
    disponer();
    connect(&Command1, &QPushButton::clicked, this, &panVacunasAtrasadas::buscar);
    connect(&Command2, &QPushButton::clicked, this, &panVacunasAtrasadas::abrirPlan);
    connect(&Command3, &QPushButton::clicked, this, &panVacunasAtrasadas::exportar);
    connect(&Command4, &QPushButton::clicked, this, &panVacunasAtrasadas::escribirCartas);
    connect(&Command5, &QPushButton::clicked, this, &panVacunasAtrasadas::unload);
    connect(&Grid1, &QAbstractItemView::activated, this, &panVacunasAtrasadas::abrirPlan);
}

panVacunasAtrasadas::~panVacunasAtrasadas()
{
    Grid1.setModel(nullptr);
}

void panVacunasAtrasadas::disponer()
{
    for (TextBox *numero : {&mDesde, &mHasta, &mDias})
        numero->setFixedWidth(60);
    setContents(this, Column{
                          Row{Fields{{u"&Vacuna :"_s, Combo1}}, Fields{{u"Edad &desde (años) :"_s, mDesde}},
                              Fields{{u"&hasta (años) :"_s, mHasta}},
                              Fields{{u"A&traso de al menos (días) :"_s, mDias}}, Stretch(), Command1},
                          Expanding(Grid1),
                          Label1,
                          Row{Command2, Command3, Command4, Stretch(), Command5},
                      });
    resize(1060, 600);
}

void panVacunasAtrasadas::load()
{
    for (const vacunas::DosisDelPlan &dosis : vacunas::plan())
        if (Combo1.findText(dosis.descripcion) < 0)
            Combo1.addItem(dosis.descripcion);
    Combo1.setCurrentIndex(0);
    const vacunas::Busqueda deTodos;
    mDesde.setText(QString::number(deTodos.desdeAnios));
    mHasta.setText(QString::number(deTodos.hastaAnios));
    mDias.setText(QString::number(deTodos.diasDeAtraso));
    mostrar({});
}

std::optional<vacunas::Busqueda> panVacunasAtrasadas::busqueda()
{
    vacunas::Busqueda pedida;
    if (Combo1.currentIndex() > 0)
        pedida.descripcion = Combo1.value();
    const std::pair<TextBox *, int *> numeros[] = {
        {&mDesde, &pedida.desdeAnios}, {&mHasta, &pedida.hastaAnios}, {&mDias, &pedida.diasDeAtraso}};
    const auto rechazar = [](TextBox &campo, const QString &motivo) {
        MODULE11::MuestraError(motivo);
        markWrong(campo, motivo);
    };
    for (const auto &[campo, valor] : numeros) {
        bool numero = false;
        *valor = campo->text().trimmed().toInt(&numero);
        if (!numero || *valor < 0) {
            rechazar(*campo, u"Escriba un número entero."_s);
            return std::nullopt;
        }
    }
    if (pedida.hastaAnios < pedida.desdeAnios) {
        rechazar(mHasta, u"La última edad es menor que la primera."_s);
        return std::nullopt;
    }
    return pedida;
}

void panVacunasAtrasadas::buscar()
{
    const auto pedida = busqueda();
    if (!pedida)
        return;
    MODULE11::RelojEspera();
    const QScopeGuard reloj([] { MODULE11::RelojNormal(); });
    Progress avance(u"Se buscan los atrasos de la dosis"_s);
    auto hallados = Atrasos::buscar(*pedida, basic::today(),
                                    [&](qint64 dosis, qint64 todas) { return avance.tell(dosis, todas); });
    if (hallados)
        mostrar(std::move(*hallados));
}

void panVacunasAtrasadas::mostrar(Atrasos atrasos)
{
    lista_->tomar(std::move(atrasos));
    const bool hay = lista_->rowCount() > 0;
    Label1.setCaption(
        u"Dosis atrasadas: %1   Niños: %2"_s.arg(lista_->atrasos().cuantos()).arg(lista_->atrasos().ninos()));
    for (CommandButton *comando : {&Command2, &Command3, &Command4})
        comando->setEnabled(hay);
    if (hay)
        Grid1.selectRow(0);
}

void panVacunasAtrasadas::abrirPlan()
{
    const QModelIndex elegida = Grid1.currentIndex();
    if (elegida.isValid())
        screens::showModal("panPlanVacunas", QString::number(lista_->atrasos().paciente(elegida.row())));
}

void panVacunasAtrasadas::exportar()
{
    const Atrasos &atrasos = lista_->atrasos();
    const reports::Listing listado{
        Atrasos::titulos(), [&atrasos](qint64 fila) -> std::optional<std::vector<basic::Value>> {
            if (fila >= atrasos.cuantos())
                return std::nullopt;
            std::vector<basic::Value> valores;
            for (int columna = 0; columna < static_cast<int>(Atrasos::titulos().size()); ++columna)
                valores.push_back(atrasos.valor(fila, columna));
            return valores;
        }};
    informes::exportaCsv(listado, titulo);
}

void panVacunasAtrasadas::escribirCartas()
{
    std::optional<Progress> avance(std::in_place, u"Se escribe el renglón"_s);
    vacunas::conCartas(
        lista_->atrasos(), [&](qint64 hechos, qint64 todos) { return avance->tell(hechos, todos); },
        [&](const QString &seleccion) {
            avance.reset(); // it would stand before the letters
            informes::muestra(u"vacunas.rpt"_s, seleccion);
        });
}

#include "moc_panVacunasAtrasadas.cpp"
