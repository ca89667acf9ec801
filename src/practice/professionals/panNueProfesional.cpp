#include "practice/professionals/panNueProfesional.h"

#include "core/services/services.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "practice/professionals/usuariosMedicos.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largos[] = {50, 100, 100, 60}; // of the columns
const QString obligatorio = u"obligatorio"_s;
constexpr int altoObservaciones = 80;

} // namespace

panNueProfesional::panNueProfesional() : Form(u"panNueProfesional"_s)
{
    setWindowTitle(u"Nuevo Profesional"_s);
    for (int campo = 0; campo < cantidad; ++campo)
        Text1.add(campo, largos[campo]).setPlaceholderText(obligatorio);
    Combo1.lineEdit()->setPlaceholderText(obligatorio);
    Combo1.lineEdit()->setMaxLength(60);
    Text2.setFixedHeight(altoObservaciones);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Nombre :"_s, Text1(cNombre)},
                                 {u"&Especialidad :"_s, Combo1},
                                 {u"&Domicilio :"_s, Text1(cDomicilio)},
                                 {u"&Localidad :"_s, Text1(cLocalidad)},
                                 {u"&Teléfonos :"_s, Text1(cTelefonos)},
                                 {u"&Observaciones :"_s, Text2},
                                 {u"&Usuario del sistema :"_s, Combo2}},
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(520);
    connect(&Command1, &QPushButton::clicked, this, &panNueProfesional::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueProfesional::load()
{
    practice::llenaUsuariosMedicos(Combo2);
    if (Combo2.count() > 0)
        Combo2.setPlaceholderText(obligatorio);
}

void panNueProfesional::activate()
{
    Text1(cNombre).setFocus();
}

basic::Value panNueProfesional::idUsuario() const
{
    return practice::usuarioElegido(Combo2);
}

/// The first that is required and blank, as they stand on the window; null when none is. The account is asked
/// for when there is one to choose: a practice may work without accounts.
QWidget *panNueProfesional::faltante()
{
    if (nombre().trimmed().isEmpty())
        return &Text1(cNombre);
    if (especialidad().trimmed().isEmpty())
        return &Combo1;
    for (int campo = cDomicilio; campo < cantidad; ++campo)
        if (Text1(campo).text().trimmed().isEmpty())
            return &Text1(campo);
    return Combo2.count() > 0 && Combo2.currentIndex() < 0 ? &Combo2 : nullptr;
}

void panNueProfesional::aceptar()
{
    QWidget *campo = faltante();
    if (!campo) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Error, ingrese correctamtente los datos solicitados !"_s);
    markWrong(*campo, u"No puede faltar"_s);
}

#include "moc_panNueProfesional.cpp"
