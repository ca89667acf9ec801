#include "core/session/session.h"

#include "platform/basic/errors.h"
#include "platform/forms/data.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

// The engine ends with the process before static objects do: the connection must be closed with the
// application.
[[maybe_unused]] const bool closesWithTheApplication = [] {
    qAddPostRoutine([] { basic::ignoring(dao::fileTrouble, [] { BaseDatos.close(); }); });
    return true;
}();

} // namespace

dao::Database BaseDatos;
QString DrActual;
QString MatriculaDr;
QString EspecialidadDr;
QString DomicilioDr;
QString TelefonosDr;
QString LocalidadDr;
QString LugarEjercicio;
QString UsuarioActual;
int NivelActual = 0;
QString TipoUsuario;
qint64 IdUsuarioActual = 0;
QString TablaRecetario;

void valoresIniciales()
{
    forms::Data::setDefaultDatabase(&BaseDatos);
    DrActual = u"Dr <Su Nombre>"_s;
    MatriculaDr = u"<xxxxxxx>"_s;
    EspecialidadDr = u"Espec. <No Registra>"_s;
    DomicilioDr = u"<No Registra>"_s;
    TelefonosDr = u"<No Registra>"_s;
    LocalidadDr = u"<No Registra>"_s;
    LugarEjercicio = u"<No Registra>"_s;
    TablaRecetario.clear();
    sinUsuario();
}

void sinUsuario()
{
    UsuarioActual = u"<TODOS>"_s;
    NivelActual = 0;
    TipoUsuario = u"M"_s;
    IdUsuarioActual = 0;
}

} // namespace MODULE11
