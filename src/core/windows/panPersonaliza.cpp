#include "core/windows/panPersonaliza.h"

#include "core/session/session.h"
#include "core/windows/Vademecum.h"
#include "platform/forms/layout.h"
#include "platform/settings/settings.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

/// Where each key of section "Usuario" is kept for the session.
struct Dato {
    const char *clave;
    QString *variable;
};
const Dato datos[] = {
    {"Lugar de Ejercicio", &MODULE11::LugarEjercicio},
    {"Apellido y Nombres", &MODULE11::DrActual},
    {"Matricula", &MODULE11::MatriculaDr},
    {"Especialidad", &MODULE11::EspecialidadDr},
    {"Domicilio", &MODULE11::DomicilioDr},
    {"Telefonos", &MODULE11::TelefonosDr},
    {"Localidad", &MODULE11::LocalidadDr},
};

/// With the suffix before it, the name fills the columns that name the doctor of a record.
constexpr int largoDelNombre = 44;

QString leer(const char *clave)
{
    return settings::getSetting(u"Usuario"_s, QString::fromUtf8(clave));
}

void escribir(const char *clave, const QString &valor)
{
    settings::saveSetting(u"Usuario"_s, QString::fromUtf8(clave), valor);
}

} // namespace

panPersonaliza::panPersonaliza() : Form(u"panPersonaliza"_s)
{
    setWindowTitle(u"Personalizar Sistema"_s);
    Label1.setWordWrap(true);
    Text7.setText(u"MEDICO "_s);
    Text1.setMaxLength(largoDelNombre);
    Command1.setDefault(true);
    setContents(this, Column{
                          Label1,
                          Group(u"Profesional"_s, Fields{{u"&Nombre y Apellido Completo :"_s, Text1},
                                                         {u"&Sufijo :"_s, Combo1},
                                                         {u"&Matrícula:"_s, Text2},
                                                         {u"&Profesión :"_s, Text7}}),
                          Group(u"Consultorio"_s, Fields{{u"&Lugar de Ejercicio :"_s, Text3},
                                                         {u"&Domicilio :"_s, Text4},
                                                         {u"C.P&ost. y Localidad"_s, Text5},
                                                         {u"&Telefonos / Fax :"_s, Text6}}),
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(560);
    connect(&Command1, &QPushButton::clicked, this, &panPersonaliza::aceptar);
    connect(&Command2, &QPushButton::clicked, this, &panPersonaliza::unload);
}

void panPersonaliza::load()
{
    // The suffix stands in front of the stored name, as documents print it.
    QString nombre = leer("Apellido y Nombres");
    Combo1.setValue({});
    for (int i = 0; i < Combo1.count(); ++i) {
        if (nombre.startsWith(Combo1.itemText(i) + u' ')) {
            Combo1.setCurrentIndex(i);
            nombre.remove(0, Combo1.itemText(i).size() + 1);
            break;
        }
    }
    Text1.setText(nombre);
    Text2.setText(leer("Matricula"));
    Text3.setText(leer("Lugar de Ejercicio"));
    Text4.setText(leer("Domicilio"));
    Text5.setText(leer("Localidad"));
    Text6.setText(leer("Telefonos"));
    if (const QString profesion = leer("Especialidad"); !profesion.isEmpty())
        Text7.setText(profesion);
}

void panPersonaliza::aceptar()
{
    const QString sufijo = Combo1.value().trimmed();
    escribir("Lugar de Ejercicio", Text3.text());
    escribir("Apellido y Nombres", sufijo.isEmpty() ? Text1.text() : sufijo + u' ' + Text1.text());
    escribir("Matricula", Text2.text());
    escribir("Especialidad", Text7.text());
    escribir("Domicilio", Text4.text());
    escribir("Telefonos", Text6.text());
    escribir("Localidad", Text5.text());
    for (const Dato &dato : datos)
        *dato.variable = leer(dato.clave);
    for (QWidget *ventana : QApplication::topLevelWidgets())
        if (auto *principal = qobject_cast<Vademecum *>(ventana))
            principal->ponerCaption();
    unload();
}

#include "moc_panPersonaliza.cpp"
