#include "core/session/login.h"

#include "core/security/eventos.h"
#include "core/security/niveles.h"
#include "core/session/session.h"
#include "core/windows/panIngresoUsuario.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

TurnosPorUsuario turnosPorUsuario;

namespace
{

constexpr int intentos = 3;

void error(const QString &texto, const QString &titulo = u"Error"_s)
{
    forms::msgBox(texto, forms::Icon::Critical, titulo);
}

enum class Intento { Aceptado, Repetir, Rechazado };

/// Who tried to enter, and could not, is of interest to the owner.
Intento rechazar(const panIngresoUsuario &ventana, const QString &motivo, Intento resultado)
{
    RegistraEvento(u"INGRESO AL SISTEMA"_s, ventana.usuario(), basic::today(), basic::time(), motivo);
    error(motivo);
    return resultado;
}

/// One pass through the login window.
Intento intentar(panIngresoUsuario &ventana)
{
    ventana.setTag({});
    ventana.showModal();
    if (ventana.tag() != u"SI") {
        error(u"No podrá ingresar al sistema"_s, u"Error de ingreso"_s);
        return Intento::Rechazado;
    }
    dao::Recordset usuarios =
        BaseDatos.openRecordset(u"Select * from usuarios where nombre = "_s + dao::quoted(ventana.usuario()));
    if (usuarios.eof()) {
        return rechazar(ventana, u"Usuario no registrado en el sistema."_s, Intento::Repetir);
    }
    const int nivel = static_cast<int>(usuarios[u"Nivel"].integer());
    if (nivel >= suspendido) {
        return rechazar(ventana, u"Usuario Suspendido para el ingreso al sistema"_s, Intento::Rechazado);
    }
    if (usuarios[u"clave"].text() != ventana.clave()) {
        ventana.pedirClave();
        return rechazar(ventana, u"Clave de acceso errónea."_s, Intento::Repetir);
    }
    NivelActual = nivel;
    UsuarioActual = usuarios[u"Nombre"].text();
    IdUsuarioActual = usuarios[u"idUsuario"].integer();
    TipoUsuario = usuarios[u"Tipo"].value().isBlank() ? u"M"_s : usuarios[u"Tipo"].text();
    turnosPorUsuario = {ventana.fechaDeTurnos(), ventana.profesionalDeTurnos()};
    return Intento::Aceptado;
}

/// "No users" is a table that was read and is empty; one that cannot be read lets nobody in.
bool hayUsuarios()
{
    return BaseDatos.isOpen() && !BaseDatos.openRecordset(u"Usuarios"_s).eof();
}

} // namespace

bool ingresar()
{
    if (!hayUsuarios()) {
        forms::msgBox(
            u"Si desea controlar el ingreso de los usuarios al sistema, deberá agregarlos en el menú herramientas --> control de acceso --> usuarios"_s,
            forms::Icon::Information, u"Sugerencia"_s);
        return true;
    }
    panIngresoUsuario ventana;
    for (int intento = 0; intento < intentos; ++intento)
        if (const Intento resultado = intentar(ventana); resultado != Intento::Repetir)
            return resultado == Intento::Aceptado;
    return false;
}

} // namespace MODULE11
