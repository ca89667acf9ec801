#include "clinical/patients/panSelPaciente.h"

#include "clinical/patients/fichas.h"
#include "core/security/permisos.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/settings/settings.h"

#include <QKeyEvent>
#include <QTabBar>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString letras = u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ*"_s;
const QString todas = u"*"_s;

/// The detail strip: what is shown of the row.
struct Dato {
    const char *titulo, *campo;
};
constexpr Dato datos[] = {
    {"Nº de Afiliado :", "Numero de Afiliado"},
    {"Obra Social :", "Obra Social"},
    {"Documento :", "Documento"},
    {"Domicilio :", "Domicilio"},
    {"Teléfono :", "Telefono"},
    {"E-mail :", "email"},
};

} // namespace

panSelPaciente::panSelPaciente() : Form(u"panSelPaciente"_s)
{
    setWindowTitle(u"Seleccionar Paciente"_s);
    for (const QChar letra : letras)
        SSTab1.addTab(new QWidget, letra);
    SSTab1.setCurrentIndex(SSTab1.count() - 1);
    SSTab1.setDocumentMode(true);
    SSTab1.setUsesScrollButtons(false);
    SSTab1.tabBar()->setExpanding(true);
    SSTab1.setFixedHeight(SSTab1.tabBar()->sizeHint().height() + 2);
    Command2.setDefault(true);
    Command1.setAutoDefault(false);
    Text2.setPlaceholderText(u"Apellido y nombres"_s);
    Text1.setPlaceholderText(u"Nº Historia Clínica"_s);

    Data1.setDatabase(&MODULE11::BaseDatos);
    DBGrid1.setSource(Data1, {{u"Nº H.C."_s, u"Numero"_s, {}, 90},
                              {u"Apellido y Nombres"_s, u"Apellido y Nombres"_s, {}, 330},
                              {u"F. Nacimiento"_s, u"Fecha de Nacimiento"_s, u"dd/mm/yyyy"_s, 110},
                              {u"Obra Social"_s, u"Obra Social"_s, {}, 160}});
    std::vector<FieldRow> izquierda, derecha;
    int indice = 0;
    for (const Dato &dato : datos) {
        Label &valor = lblDato.add(indice);
        valor.setTextInteractionFlags(Qt::TextSelectableByMouse);
        Data1.bind(valor, QString::fromUtf8(dato.campo));
        (indice < 3 ? izquierda : derecha).emplace_back(QString::fromUtf8(dato.titulo), valor);
        ++indice;
    }
    setContents(this,
                Column{
                    Row{Fields{{u"Buscar por no&mbre :"_s, Text2}}, Fields{{u"por &número :"_s, Text1}}},
                    SSTab1,
                    Expanding(DBGrid1),
                    Row{Label5, Stretch(), checkBajas},
                    Group(u"Datos del paciente"_s, Row{Fields(izquierda), Fields(derecha)}),
                    Row{Command1, Stretch(), Command2, Command3},
                });
    resize(800, 620);

    Text1.installEventFilter(this);
    Text2.installEventFilter(this);
    connect(&SSTab1, &QTabWidget::tabBarClicked, this, [this](int ficha) {
        SSTab1.setCurrentIndex(ficha);
        irALetra();
    });
    connect(&Text1, &QLineEdit::textChanged, this, [this](const QString &texto) {
        if (!texto.isEmpty())
            buscar(u"Numero = "_s + texto);
    });
    connect(&Text2, &QLineEdit::textChanged, this, [this](const QString &texto) {
        if (!texto.isEmpty())
            buscar(u"[Apellido y Nombres] LIKE '*%1*'"_s.arg(texto));
    });
    connect(&Data1, &Data::reposition, this,
            [this] { numero_ = Data1.hasRow() ? Data1.recordset()[u"Numero"].text() : QString(); });
    connect(&DBGrid1, &DBGrid::accepted, this, &panSelPaciente::command2Click);
    connect(&Command1, &QPushButton::clicked, this, &panSelPaciente::command1Click);
    connect(&Command2, &QPushButton::clicked, this, &panSelPaciente::command2Click);
    connect(&Command3, &QPushButton::clicked, this, &panSelPaciente::unload);
}

void panSelPaciente::load()
{
    checkBajas.setChecked(settings::getSetting(u"Miscelaneas"_s, u"ActivaOpcionMuestraBajas"_s) == u"1");
    connect(&checkBajas, &QCheckBox::toggled, this, [this](bool ocultar) {
        settings::saveSetting(u"Miscelaneas"_s, u"ActivaOpcionMuestraBajas"_s, ocultar ? u"1"_s : u"0"_s);
        armarLista();
    });
}

void panSelPaciente::activate()
{
    if (Data1.hasRecordset())
        return; // back from the search dialogue, which has moved the row
    const auto filtro = MODULE11::FiltroDePacientes();
    if (!filtro) {
        unload();
        return;
    }
    filtro_ = *filtro;
    armarLista();
    Text2.setFocus();
}

/// A discharge may lie in the future: the patient stays listed until that day.
void panSelPaciente::armarLista()
{
    const QString bajas =
        checkBajas.isChecked() ? u"( date() < fechaBaja or fechaBaja = NULL )"_s : u" TRUE "_s;
    letraDeLaLista_ = SSTab1.tabText(SSTab1.currentIndex());
    const QString porLetra = letraDeLaLista_ == todas
                                 ? QString()
                                 : u" AND left([apellido y nombres],1) = '%1'"_s.arg(letraDeLaLista_);
    Data1.setRecordSource(u"Select * from pacientes where ( idProfesional = 0 OR "_s + filtro_ + u") AND "_s +
                          bajas + porLetra + u" order by [apellido y nombres]"_s);
    Data1.refresh();
    if (const qint64 cantidad = Data1.recordset().rowCount(); cantidad > 0)
        Label5.setCaption(u"Cant. Pacientes : "_s + QString::number(cantidad));
}

/// A list of one letter holds no other: it is built anew before the move.
void panSelPaciente::irALetra()
{
    const QString letra = SSTab1.tabText(SSTab1.currentIndex());
    if (letraDeLaLista_ != todas && letraDeLaLista_ != letra)
        armarLista();
    buscar(u"[apellido y nombres] LIKE '%1*'"_s.arg(letra.toUpper()));
}

void panSelPaciente::buscar(const QString &criterio)
{
    basic::ignoringErrors(
        [&] { Data1.change([&](dao::Recordset &pacientes) { pacientes.findFirst(criterio); }); });
}

void panSelPaciente::command1Click()
{
    Data1.change([](dao::Recordset &pacientes) { BuscaEnPacientes(pacientes); });
}

void panSelPaciente::command2Click()
{
    if (!numero_.isEmpty())
        answer(numero_);
}

/// The arrow keys of a search field move in the list, so that a name typed is chosen without the mouse.
bool panSelPaciente::eventFilter(QObject *receptor, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress) {
        const auto *tecla = static_cast<QKeyEvent *>(evento);
        const int paso = tecla->key() == Qt::Key_Down ? 1 : tecla->key() == Qt::Key_Up ? -1 : 0;
        if (paso != 0) {
            DBGrid1.setCurrentRow(DBGrid1.currentRow() + paso);
            return true;
        }
    }
    return Form::eventFilter(receptor, evento);
}

#include "moc_panSelPaciente.cpp"
