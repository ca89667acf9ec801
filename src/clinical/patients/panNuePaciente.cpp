#include "clinical/patients/panNuePaciente.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "platform/printing/printer.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

// The columns' lengths: what does not fit is not typed.
constexpr int largos[] = {9, 100, 30, 100, 60, 100, 15, 60, 60, 60, 100, 30};

const QStringList gruposSanguineos = {u"A+"_s, u"B+"_s, u"AB+"_s, u"0+"_s,
                                      u"A-"_s, u"B-"_s, u"AB-"_s, u"0-"_s};
const QStringList situaciones = {u"Soltero/a"_s, u"Casado/a"_s,       u"Divorciado/a"_s,
                                 u"Viudo/a"_s,   u"Pareja estable"_s, u"Otras...!"_s};

} // namespace

panNuePaciente::panNuePaciente() : Form(u"panNuePaciente"_s)
{
    setWindowTitle(u"Nuevo Paciente"_s);
    for (int campo = cNumero; campo <= cAfiliado; ++campo)
        Text1.add(campo, largos[campo]);
    Combo4.addItems(situaciones);
    Command1.setDefault(true);

    setContents(this, Column{
                          Group(u"Paciente"_s, Row{Fields{{u"&Nº Historia Clínica :"_s, Text1(cNumero)},
                                                          {u"Ape&llido y Nombres :"_s, Text1(cNombre)},
                                                          {u"Fecha de Nacimient&o :"_s, DTPicker1},
                                                          {u"Se&xo :"_s, mSexo}},
                                                   Fields{{u"&Documento :"_s, Text1(cDocumento)},
                                                          {u"&Grupo Sanguíneo :"_s, Combo2},
                                                          {u"Sit&uación Conyugal :"_s, Combo4},
                                                          {QString(), Check2}}}),
                          Group(u"Domicilio"_s, Row{Fields{{u"Domicilio :"_s, Text1(cDomicilio)},
                                                           {u"Barrio :"_s, Text1(cBarrio)},
                                                           {u"Localidad :"_s, Text1(cLocalidad)},
                                                           {u"Código Postal :"_s, Text1(cCodigoPostal)}},
                                                    Fields{{u"Provincia :"_s, Text1(cProvincia)},
                                                           {u"País :"_s, Text1(cPais)},
                                                           {u"Teléfono :"_s, Text1(cTelefono)},
                                                           {u"E-mail :"_s, Text1(cEmail)}}}),
                          Group(u"Cobertura y profesional"_s,
                                Row{Fields{{QString(), Check1}, {Label1, Combo1}, {Label2, Text1(cAfiliado)}},
                                    Fields{{u"P&rofesional :"_s, Combo3}, {lblBaja, dtBaja}}}),
                          Row{Command4, Command5, Stretch(), Command1, Command2},
                      });
    setMinimumWidth(820);

    lblBaja.hide();
    dtBaja.hide();
    dtBaja.setDate({});

    const QList<QWidget *> cobertura = {&Label1, &Combo1, &Label2, &Text1(cAfiliado)};
    for (QWidget *control : cobertura) {
        control->setEnabled(false);
        connect(&Check1, &QCheckBox::toggled, control, &QWidget::setEnabled);
    }
    connect(&Command1, &QPushButton::clicked, this, &panNuePaciente::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command4, &QPushButton::clicked, this, [this] { familia_.showModal(); });
    connect(&Command5, &QPushButton::clicked, this, &panNuePaciente::imprimir);
}

void panNuePaciente::mostrar(dao::Recordset &paciente, dao::Recordset *pediatria,
                             const QStringList &patologias)
{
    static constexpr const char16_t *columnas[] = {
        u"Numero",       u"Apellido y Nombres", u"Documento", u"Domicilio", u"Barrio", u"Localidad",
        u"CodigoPostal", u"Provincia",          u"Pais",      u"Telefono",  u"email",  u"Numero de Afiliado"};
    edita_ = true;
    setWindowTitle(u"Edición de datos básicos del paciente"_s);
    llenarListas();
    for (int campo = cNumero; campo <= cAfiliado; ++campo)
        Text1(campo).setText(paciente[columnas[campo]].text());
    Text1(cNumero).setEnabled(false);
    if (const basic::Value nacimiento = paciente[u"Fecha de Nacimiento"]; !nacimiento.isNull())
        DTPicker1.setValue(nacimiento.date());
    Combo2.setValue(paciente[u"Grupo Sanguineo"].text());
    mSexo.setValue(paciente[u"Sexo"].text());
    Combo4.setValue(paciente[u"Situacion Conyugal"].text());
    const QString cobertura = paciente[u"Obra Social"].text();
    if (!cobertura.isEmpty() && Combo1.findText(cobertura) < 0)
        Combo1.addItem(cobertura); // one that is in the catalogue no more stays the patient's
    Combo1.setValue(cobertura);
    Check1.setChecked(!cobertura.isEmpty());
    Check2.setChecked(paciente[u"Es turista o esporadico"].truth());
    Combo3.setValue(MODULE11::BuscaCampo(u"Select Nombre from Profesionales where idProfesional = %1"_s.arg(
                                             paciente[u"idProfesional"].integer()),
                                         u"Nombre")
                        .text());
    Combo3.setEnabled(false);
    lblBaja.show();
    dtBaja.setVisible(true);
    dtBaja.setFieldValue(paciente[u"FechaBaja"]);
    familia_.mostrar(pediatria, patologias);
}

void panNuePaciente::llenarListas()
{
    Combo2.addItems(gruposSanguineos);
    mSexo.addItems({u"Varon"_s, u"Mujer"_s});
    MODULE11::LlenaLista(Combo1, u"Select * from [Obra Social]"_s, u"Descripcion");
    MODULE11::LlenaLista(Combo3, u"Select * from Profesionales"_s, u"Nombre");
}

void panNuePaciente::load()
{
    Command4.setEnabled(settings::applicationTitle() != u"Sanirell! Modulo secretaria");
    if (edita_)
        return;
    Combo3.setEnabled(MODULE11::TipoUsuario != u"M");
    llenarListas();
    Combo2.setCurrentIndex(-1);
    mSexo.setCurrentIndex(-1);
    Combo4.setCurrentIndex(-1);
    ofrecerNumero();
    Combo3.setValue(MODULE11::DrActual);
}

void panNuePaciente::activate()
{
    Text1(cNombre).setFocus();
}

void panNuePaciente::ofrecerNumero()
{
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    if (pacientes.eof()) {
        Text1(cNumero).setText(u"1"_s);
        return;
    }
    pacientes.setIndex(u"PrimaryKey");
    pacientes.moveLast();
    Text1(cNumero).setText(QString::number(pacientes[u"Numero"].integer() + 1));
}

bool panNuePaciente::numeroAceptado()
{
    if (!numero()) {
        MODULE11::MuestraError(u"Historia clinica mal ingresada."_s);
        forms::markWrong(Text1(cNumero), u"Un número entero"_s);
        return false;
    }
    if (!services::paciente(*numero()))
        return true;
    MODULE11::MuestraError(u"Historia clinica ya existente, intente con otro número"_s);
    Text1(cNumero).setText(u"0"_s);
    forms::markWrong(Text1(cNumero), u"Otro número"_s);
    return false;
}

void panNuePaciente::aceptar()
{
    if (!edita_ && !numeroAceptado())
        return;
    if (nombre().trimmed().isEmpty()) {
        MODULE11::MuestraError(u"Datos mal ingresados"_s);
        forms::markWrong(Text1(cNombre), u"El apellido y los nombres no pueden faltar"_s);
        return;
    }
    answer(u"SI"_s);
}

void panNuePaciente::imprimir()
{
    if (!MODULE11::Pregunta(u"Imprime la ficha"_s))
        return;
    const auto impresora = printing::defaultChoice(nombre() + u" - "_s + windowTitle());
    if (!impresora)
        return;
    const QList<QWidget *> adornos = {&Command1, &Command2, &Command4, &Command5};
    for (QWidget *adorno : adornos)
        adorno->hide();
    const QImage imagen = grab().toImage();
    for (QWidget *adorno : adornos)
        adorno->show();
    printing::Document documento(*impresora, impresora->name);
    documento.paintPage(imagen);
    documento.endDoc();
}

const panComFliar *panNuePaciente::condicionFamiliar() const
{
    return familia_.tag() == u"SI" ? &familia_ : nullptr;
}

#include "moc_panNuePaciente.cpp"
