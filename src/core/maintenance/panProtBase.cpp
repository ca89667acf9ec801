#include "core/maintenance/panProtBase.h"

#include "core/maintenance/proteccion.h"
#include "core/maintenance/trabajo.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString seccion = u"Miscelaneas"_s, clave = u"Clave de Seguridad para la base de datos"_s;

void error(const QString &texto)
{
    msgBox(texto, Icon::Critical, u"Error"_s);
}

} // namespace

panProtBase::panProtBase() : Form(u"panProtBase"_s)
{
    setWindowTitle(u"Protección de la base de datos"_s);
    Label5.setWordWrap(true);
    Label5.setCaption(
        u"Atención: Sanirell! abre la base únicamente con la clave que trae de fábrica. Con cualquier otra el programa no podrá volver a abrirla."_s);
    for (TextBox *campo : {&Text1, &Text2, &Text3})
        campo->setSecret();
    Command1.setDefault(true);
    setContents(this, Column{
                          Label5,
                          Fields{{Label1, Text1}, {Label2, Text2}, {Label3, Row{Expanding(Text3), Label4}}},
                          Check1,
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(560);
    connect(&Command1, &QPushButton::clicked, this, &panProtBase::establecer);
    connect(&Command2, &QPushButton::clicked, this, &panProtBase::unload);
}

bool panProtBase::clavesBienEscritas()
{
    if (Text2.text() != Text3.text()) {
        error(u"Error en la comprobación de la clave nueva !!"_s);
        Text3.clear();
        Text2.clear();
        Text2.setFocus();
        return false;
    }
    // Without one the children's records would lie open; and behind a semicolon the engine would read another
    // word.
    if (Text2.text().isEmpty() || Text2.text().contains(u';')) {
        markWrong(Text2, Text2.text().isEmpty() ? u"Ingrese la clave nueva"_s
                                                : u"La clave no puede llevar punto y coma"_s);
        return false;
    }
    return true;
}

/// Without a password kept here, or with one that was damaged, the file itself tells.
bool panProtBase::claveAnteriorBien()
{
    const QString guardada = settings::getSetting(seccion, clave);
    if (guardada.isEmpty())
        return true;
    if (proteccion::DesencriptaClave(guardada) == Text1.text()) // a damaged one is no word that can be typed
        return true;
    error(u"Clave de acceso anterior mal ingresada !!"_s);
    return false;
}

void panProtBase::establecer()
{
    if (!clavesBienEscritas() || !claveAnteriorBien() ||
        !MODULE11::Pregunta(u"Está seguro de protejer la base de datos con esta contraseña ??"_s))
        return;
    if (!Check1.hacer() || !mantenimiento::cerrarFichas())
        return;
    const mantenimiento::EnCurso enCurso;
    basic::ignoring(dao::fileTrouble, [] { MODULE11::BaseDatos.close(); });
    QString fallo;
    mantenimiento::trabajar(
        u"Se protege la base de datos"_s, mantenimiento::Detencion::Imposible, [&](const auto &avance) {
            fallo = proteccion::proteger(basic::programFolder(), Text1.text(), Text2.text(), avance);
            return true;
        });
    if (!fallo.isEmpty()) {
        error(fallo);
        unload();
        return;
    }
    settings::saveSetting(seccion, clave, proteccion::EncriptaClave(Text2.text()));
    MODULE11::Aviso(
        u"La seguridad a su base de datos ha sido establecida correctamente, debe reiniciar Sanirell!"_s);
    MODULE11::terminar();
}

#include "moc_panProtBase.cpp"
