#include "core/session/startup.h"

#include "core/database/actualiza.h"
#include "core/maintenance/restauracion.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/login.h"
#include "core/session/recetario.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/windows/Vademecum.h"
#include "core/windows/panSelProf.h"
#include "core/windows/portada.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/twips.h"
#include "platform/settings/settings.h"
#include "platform/shell/shell.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>

#include <set>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

constexpr double anchoMinimo = 12000; // twips

void escribirSiVacio(const QString &clave, const QString &valor)
{
    if (settings::getSetting(u"Configuracion"_s, clave).isEmpty())
        settings::saveSetting(u"Configuracion"_s, clave, valor);
}

constexpr int pacienciaAlEmpezar = 4000; // milliseconds: nobody looks at a window that does not answer
constexpr int pacienciaAlTrabajar = 15000;

/// What is wrong and, with a file that cannot be used as it is, what else stands there.
QString motivo(const dao::Error &error)
{
    if (error.number() == dao::Error::Locked)
        return u"El archivo está en uso por otra terminal."_s;
    static const std::set<int> inservible = {dao::Error::FileDamaged, dao::Error::NotADatabase,
                                             dao::Error::WrongPassword};
    const QString hay =
        inservible.contains(error.number()) ? restauracion::queHacer(basic::programFolder()) : QString();
    if (hay.isEmpty())
        return error.description();
    return error.description() + u'\n' + hay +
           u" Para volver a uno de ellos cierre el programa en todos los equipos, cambie el nombre de BASE.MDB, sin borrarlo, y deje una copia de ese archivo con el nombre BASE.MDB."_s;
}

/// Does what start-up needs of the practice's file; what cannot be read now is told, to try again. False when
/// the person leaves: without it nobody may be let in.
template <class Work>
bool conLaBase(Work &&work)
{
    while (true) {
        try {
            work();
            return true;
        } catch (const dao::Error &error) {
            const QString texto = u"No se puede usar la base de datos %1.\n%2"_s.arg(
                basic::programFile(u"BASE.MDB"_s), motivo(error));
            if (!forms::retryBox(texto, u"Base de datos"_s, u"&Salir"_s))
                return false;
        }
    }
}

/// Without the file in the folder start-up goes on in silence.
void abrirArchivo()
{
    BaseDatos.setPatience(pacienciaAlEmpezar);
    basic::ignoring({dao::Error::FileNotFound},
                    [] { BaseDatos.open(u"BASE.MDB"_s, false, false, conexionDeLaBase()); });
}

bool abrirBase()
{
    QDir::setCurrent(basic::programFolder());
    const bool abierta = conLaBase(abrirArchivo);
    settings::saveSetting(u"Sanirell!"_s, u"Ruta"_s, u"Ruta"_s, basic::programFolder() + u"\\BASE.MDB"_s);
    escribirSiVacio(u"Abrir ficha paciente"_s, u"FICHA GLOBAL"_s);
    return abierta;
}

/// A file that can only be read keeps what it has.
bool actualizarBase()
{
    return conLaBase([] { basic::ignoring({dao::Error::ReadOnly}, ActualizaBase); });
}

bool entrar()
{
    bool entro = false;
    return conLaBase([&entro] { entro = ingresar(); }) && entro;
}

/// Nobody is asked for a name, and nobody watches: whoever started the program reads its status.
void importar()
{
    const bool hecho = screens::showModal("panImportAfiliados", u"AUTO"_s) == u"SI";
    terminar(hecho ? EXIT_SUCCESS : EXIT_FAILURE);
}

void avisarPantallaChica()
{
    if (forms::toTwips(QGuiApplication::primaryScreen()->size().width()) >= anchoMinimo)
        return;
    forms::msgBox(
        u"ATENCION : Para poder visualizar el sistema en toda su magnitud, debe configurar la pantalla en una resolución de 1024 x 768 pixels o superior. Para ello, dirijase al Panel de control de Windows, elija Pantalla y en la hojuela Configuración realize el cambio correspondiente."_s,
        forms::Icon::Exclamation, u"Visualización de Video"_s);
}

void adoptarDoctor(const QString &nombre)
{
    settings::saveSetting(u"Usuario"_s, u"Apellido y Nombres"_s, nombre);
    DrActual = nombre;
}

/// `DrActual` still holds its initial text here, so the question comes at every start unless a professional
/// bears exactly that name.
void elegirDoctorDelEquipo()
{
    const QString consulta = u"Select * from profesionales where nombre = "_s + dao::quoted(DrActual);
    basic::Value nombre; // a look-up that fails leaves it empty, which is not Null
    basic::ignoring(dao::fileTrouble, [&] { nombre = BuscaCampo(consulta, u"Nombre"); });
    if (!nombre.isNull())
        return;
    panSelProf seleccion;
    seleccion.showModal();
    if (seleccion.tag() == u"SI" && !seleccion.nombre().isEmpty())
        adoptarDoctor(seleccion.nombre());
}

void enlazarUsuarioConProfesional()
{
    basic::ignoring(dao::fileTrouble, [] {
        const QString consulta =
            u"Select nombre,idUsuario from profesionales where idusuario = %1"_s.arg(IdUsuarioActual);
        if (!BuscaCampo(consulta, u"idUsuario").isNull())
            adoptarDoctor(BuscaCampo(consulta, u"nombre").text());
    });
}

} // namespace

QString conexionDeLaBase()
{
    return u";PWD=qTzR8mvW2"_s;
}

std::unique_ptr<Vademecum> iniciar(const QString &comando)
{
    valoresIniciales();
    auto principal = std::make_unique<Vademecum>();
    if (!shell::claimSingleInstance(settings::applicationTitle())) {
        forms::msgBox(u"Otra instancia del programa se está ejecutando en éste momento!"_s,
                      forms::Icon::Critical, u"Error"_s);
        terminar();
        return nullptr;
    }
    {
        portada presentacion;
        presentacion.showModal();
    }
    if (!abrirBase()) {
        terminar();
        return nullptr;
    }
    if (comando.toUpper() == u"IMPORTAR") {
        importar();
        return nullptr;
    }
    if (!actualizarBase()) {
        terminar();
        return nullptr;
    }
    prepararRecetario();
    avisarPantallaChica();
    elegirDoctorDelEquipo();
    escribirSiVacio(u"AplicacionEdicionImagenes"_s, u"C:\\WINDOWS\\SYSTEM32\\MSPAINT.EXE"_s);
    sinUsuario();
    if (!entrar()) {
        terminar();
        return nullptr;
    }
    BaseDatos.setPatience(pacienciaAlTrabajar);
    enlazarUsuarioConProfesional();
    principal->show();
    return principal;
}

} // namespace MODULE11
