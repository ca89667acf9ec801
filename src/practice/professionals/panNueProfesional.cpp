#include "practice/professionals/panNueProfesional.h"

#include "core/services/services.h"
#include "platform/forms/layout.h"
#include "practice/professionals/usuariosMedicos.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largos[] = {50, 100, 100, 60}; // of the columns
constexpr int altoObservaciones = 80;

} // namespace

panNueProfesional::panNueProfesional() : Form(u"panNueProfesional"_s)
{
    setWindowTitle(u"Nuevo Profesional"_s);
    for (int campo = 0; campo < cantidad; ++campo)
        Text1.add(campo, largos[campo]);
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
    connect(&Command1, &QPushButton::clicked, this, &panNueProfesional::command1Click);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueProfesional::load()
{
    practice::llenaUsuariosMedicos(Combo2);
}

void panNueProfesional::activate()
{
    Text1(cNombre).setFocus();
}

basic::Value panNueProfesional::idUsuario() const
{
    return practice::usuarioElegido(Combo2);
}

/// The account is asked for when there is one to choose: a practice may work without accounts.
bool panNueProfesional::completo() const
{
    for (int campo = 0; campo < cantidad; ++campo)
        if (Text1(campo).text().trimmed().isEmpty())
            return false;
    return !especialidad().trimmed().isEmpty() && (Combo2.count() == 0 || Combo2.currentIndex() >= 0);
}

void panNueProfesional::command1Click()
{
    if (completo())
        answer(u"SI"_s);
    else
        MODULE11::MuestraError(u"Error, ingrese correctamtente los datos solicitados !"_s);
}

#include "moc_panNueProfesional.cpp"
