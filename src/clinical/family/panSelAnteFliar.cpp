#include "clinical/family/panSelAnteFliar.h"

#include "clinical/catalogues/panCIE10.h"
#include "core/security/niveles.h"
#include "core/services/services.h"
#include "platform/basic/errors.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QStringList grupos = {
    u"Oncológicas"_s,         u"Respiratorias"_s, u"Cardiovascular"_s, u"Oftalmológicas"_s,
    u"Infecciosas"_s,         u"Endocrinas"_s,    u"Neurológicas"_s,   u"Inmunoalergicas"_s,
    u"Trastornos Mentales"_s, u"Obesidad"_s,      u"Diabetes"_s,       familia::fallecido,
    u"Sedentarismo"_s,        u"Tabaquismo"_s,    u"Alcoholismo"_s,    u"Drogadependencia"_s};
const QStringList causas = {u"Accidente"_s, u"Enfermedad"_s, u"Homicidio"_s, u"Suicidio"_s};

} // namespace

panSelAnteFliar::panSelAnteFliar(qint64 paciente, const QString &pariente)
    : Form(u"panSelAnteFliar"_s), paciente_(paciente)
{
    setWindowTitle(u"Seleccionar"_s);
    setTag(QString::number(paciente));
    forms::setTag(&Command2, pariente);
    Label1.setCaption(pariente);
    QFont destacada = Label1.font();
    destacada.setBold(true);
    Label1.setFont(destacada);
    List1.setToolTip(u"Enfermedades del pariente según CIE10"_s);
    Command2.setDefault(true);

    std::vector<Item> casillas, opciones;
    for (int i = 0; i < grupos.size(); ++i) {
        CheckBox &casilla = Check1.add(i, grupos[i]);
        casillas.emplace_back(casilla);
        connect(&casilla, &QCheckBox::toggled, this, &panSelAnteFliar::habilitarCausas);
    }
    for (int i = 0; i < causas.size(); ++i)
        opciones.emplace_back(Option1.add(i, causas[i]));
    setContents(this, Column{
                          Label1,
                          Group(u"Antecedentes generales"_s, Grid(4, casillas)),
                          Group(u"Causa del fallecimiento"_s, Grid(4, opciones)),
                          Group(u"Entidades Nosológicas (Especificadas por CIE10)"_s,
                                Row{Expanding(List1), Column{Command9, Command1, Stretch()}}),
                          Row{Stretch(), Command2, Command3},
                      });
    setMinimumWidth(640);
    connect(&Command9, &QPushButton::clicked, this, &panSelAnteFliar::agregarEnfermedad);
    connect(&Command1, &QPushButton::clicked, this, &panSelAnteFliar::quitarEnfermedad);
    connect(&Command2, &QPushButton::clicked, this, &panSelAnteFliar::guardar);
    connect(&Command3, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panSelAnteFliar::load()
{
    mostrar(familia::leer(paciente_, pariente()));
    guardados_ = elegidos();
}

void panSelAnteFliar::mostrar(const familia::Antecedentes &antecedentes)
{
    for (const auto &[i, casilla] : Check1)
        casilla->setChecked(antecedentes.grupos.contains(grupos[i]) ||
                            (grupos[i] == familia::fallecido && antecedentes.muerte));
    for (const auto &[i, opcion] : Option1)
        opcion->setChecked(antecedentes.muerte == causas[i]);
    List1.addItems(antecedentes.enfermedades);
    habilitarCausas();
}

familia::Antecedentes panSelAnteFliar::elegidos() const
{
    familia::Antecedentes elegidos;
    for (const auto &[i, casilla] : Check1)
        if (casilla->isChecked())
            elegidos.grupos += grupos[i];
    for (const auto &[i, opcion] : Option1)
        if (opcion->isEnabled() && opcion->isChecked())
            elegidos.muerte = causas[i];
    elegidos.enfermedades = List1.lines();
    return elegidos;
}

void panSelAnteFliar::habilitarCausas()
{
    const bool murio = Check1(static_cast<int>(grupos.indexOf(familia::fallecido))).isChecked();
    for (const auto &[i, opcion] : Option1)
        opcion->setEnabled(murio);
}

void panSelAnteFliar::agregarEnfermedad()
{
    if (!MODULE11::VerificaNivel(u"IngresarACie10"_s))
        return;
    panCIE10 clasificacion;
    clasificacion.showModal();
    const QString enfermedad = clasificacion.tag();
    if (enfermedad != u"NO" && !enfermedad.isEmpty() && !List1.lines().contains(enfermedad))
        List1.addLine(enfermedad);
}

void panSelAnteFliar::quitarEnfermedad()
{
    delete List1.takeItem(List1.currentRow());
}

void panSelAnteFliar::guardar()
{
    const familia::Antecedentes nuevos = elegidos();
    familia::guardar(paciente_, pariente(), nuevos);
    guardados_ = nuevos;
    answer(u"SI"_s);
}

bool panSelAnteFliar::queryUnload()
{
    return elegidos() == guardados_ ||
           MODULE11::PreguntaSiBorra(u"Cierra sin guardar los antecedentes del pariente"_s);
}

#include "moc_panSelAnteFliar.cpp"
