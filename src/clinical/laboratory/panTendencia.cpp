#include "clinical/laboratory/panTendencia.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/basic/value.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

QString enTexto(const std::optional<double> &valor)
{
    return valor ? basic::Value(*valor).text() : QString();
}

/// A limit that is left blank is none. False for what is no number.
bool leerLimite(const QString &texto, std::optional<double> &limite)
{
    limite = basic::toNumber(texto.trimmed());
    return limite || texto.trimmed().isEmpty();
}

} // namespace

panTendencia::panTendencia() : Form(u"panTendencia"_s)
{
    setWindowTitle(u"Tendencia de laboratorio"_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    mMinimo.setFixedWidth(80);
    mMaximo.setFixedWidth(80);
    Command2.setToolTip(u"Lo normal de este estudio, para todos los pacientes del consultorio"_s);
    setContents(this,
                Column{
                    lblPaciente,
                    Row{Expanding(Fields{{u"&Estudio :"_s, comboEstudio}}),
                        Fields{{u"&Normal desde :"_s, mMinimo}}, Fields{{u"&hasta :"_s, mMaximo}}, Command2},
                    Expanding(Graph1),
                    Row{Stretch(), Command1},
                });
    resize(860, 460);
    connect(&comboEstudio, &QComboBox::textActivated, this, &panTendencia::mostrar);
    connect(&Command1, &QPushButton::clicked, this, [this] { unload(); });
    connect(&Command2, &QPushButton::clicked, this, &panTendencia::guardarRango);
}

void panTendencia::load()
{
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    const QStringList estudios =
        laboratorio::estudiosConValores(services::numeroDePaciente(tag()).value_or(0));
    comboEstudio.addItems(estudios);
    comboEstudio.setValue(estudios.contains(primero_) ? primero_ : estudios.value(0));
    for (QWidget *deUnEstudio :
         std::initializer_list<QWidget *>{&comboEstudio, &mMinimo, &mMaximo, &Command2})
        deUnEstudio->setEnabled(!estudios.isEmpty());
    mostrar();
    comboEstudio.setFocus();
}

void panTendencia::mostrar()
{
    const QString estudio = comboEstudio.value();
    const laboratorio::Rango rango = laboratorio::rango(estudio);
    mMinimo.setText(enTexto(rango.minimo));
    mMaximo.setText(enTexto(rango.maximo));
    Graph1.mostrar(laboratorio::tendencia(services::numeroDePaciente(tag()).value_or(0), estudio), rango);
}

void panTendencia::guardarRango()
{
    laboratorio::Rango rango;
    const bool hayMinimo = leerLimite(mMinimo.text(), rango.minimo);
    const bool hayMaximo = leerLimite(mMaximo.text(), rango.maximo);
    if (!hayMinimo || !hayMaximo || (rango.minimo && rango.maximo && *rango.minimo > *rango.maximo)) {
        MODULE11::MuestraError(
            u"Escriba dos números, el menor primero; lo que queda en blanco no tiene límite."_s);
        markWrong(hayMinimo ? mMaximo : mMinimo, u"Un número"_s);
        return;
    }
    laboratorio::guardarRango(comboEstudio.value(), rango);
    mostrar();
}

#include "moc_panTendencia.cpp"
