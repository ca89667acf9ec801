#include "clinical/patients/panSelPaciente.h"

#include "clinical/patients/buscaPaciente.h"
#include "core/security/permisos.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/sqltext.h"
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

QString nombreComo(const QString &texto, dao::Match lugar)
{
    return u"[Apellido y Nombres] LIKE "_s + dao::quoted(dao::typedPattern(texto, lugar));
}

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
    Text2.setPlaceholderText(u"Apellido y nombres"_s);
    Text1.setPlaceholderText(u"Nº Historia Clínica"_s);

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
    connect(&Text1, &QLineEdit::textChanged, this, &panSelPaciente::buscarNumero);
    connect(&Text2, &QLineEdit::textChanged, this, &panSelPaciente::buscarNombre);
    connect(&Data1, &Data::reposition, this, &panSelPaciente::mostrarElegido);
    connect(&DBGrid1, &DBGrid::accepted, this, &panSelPaciente::aceptar);
    connect(&Command1, &QPushButton::clicked, this, &panSelPaciente::buscarConDialogo);
    connect(&Command2, &QPushButton::clicked, this, &panSelPaciente::aceptar);
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
                                 : u" AND left([apellido y nombres],1) = "_s + dao::quoted(letraDeLaLista_);
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
    if (letra != todas && Data1.hasRecordset())
        Data1.find(nombreComo(letra, dao::Match::Beginning));
}

/// While nobody is found nobody is chosen: the patient met before must not be taken for the one looked for.
void panSelPaciente::buscar(SearchBox &casilla, const QString &criterio)
{
    casilla.setFound(!criterio.isEmpty() && Data1.find(criterio));
    if (!casilla.found())
        Data1.chooseNone();
}

void panSelPaciente::buscarNumero(const QString &texto)
{
    if (texto.isEmpty())
        return;
    const auto numero = services::numeroDePaciente(texto);
    buscar(Text1, numero ? u"Numero = "_s + QString::number(*numero) : QString());
}

void panSelPaciente::buscarNombre(const QString &texto)
{
    if (!texto.isEmpty())
        buscar(Text2, nombreComo(texto, dao::Match::Anywhere));
}

/// A row gone to is a choice, whatever was typed before.
void panSelPaciente::mostrarElegido()
{
    const bool hay = Data1.hasRow();
    numero_ = hay ? Data1.recordset()[u"Numero"].text() : QString();
    Command2.setEnabled(hay);
    if (!hay)
        return;
    Text1.setFound(true);
    Text2.setFound(true);
}

void panSelPaciente::buscarConDialogo()
{
    std::optional<QString> sinHallar;
    Data1.change([&](dao::Recordset &pacientes) {
        sinHallar = BuscaEnPacientes(pacientes, u"Apellido y Nombres"_s, u"Numero"_s);
    });
    if (!sinHallar)
        return;
    Data1.chooseNone();
    const QSignalBlocker silencio(Text2);
    Text2.setText(*sinHallar);
    Text2.setFound(false);
}

void panSelPaciente::aceptar()
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
