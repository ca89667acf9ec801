#include "core/security/niveles.h"

#include "core/security/eventos.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

void rechaza(const QString &clave, const QString &texto, const QString &suceso)
{
    forms::msgBox(texto, forms::Icon::Critical, u"Error"_s);
    RegistraEvento(clave, suceso);
}

} // namespace

bool VerificaNivel(const QString &clave)
{
    if (NivelActual == 0) {
        RegistraEvento(clave, u"<NADIE>"_s, basic::today(), basic::time(),
                       u"INGRESO CORRECTO SIN USUARIOS"_s);
        return true;
    }
    dao::Recordset niveles = BaseDatos.openRecordset(u"Niveles"_s);
    niveles.setIndex(u"nivel");
    niveles.seek(u"=", NivelActual);
    const bool definido = !niveles.noMatch();
    bool permitido = false;
    if (definido) // an unknown key reads as a refusal
        basic::ignoring({dao::Error::ItemNotFound}, [&] { permitido = niveles[clave].truth(); });
    if (permitido)
        RegistraEvento(clave, u"INGRESO CORRECTO"_s);
    else if (definido)
        rechaza(clave, u"Nivel no permitido para el usuario "_s + UsuarioActual, u"NIVEL NO PERMITIDO"_s);
    else
        rechaza(
            clave,
            u"El usuario actual no tiene definido el nivel de acceso o el nivel de acceso de este usuario no existe. Verifique Niveles de acceso y usuarios del menu Servicios"_s,
            u"NIVEL NO DEFINIDO PARA EL USUARIO"_s);
    return permitido;
}

bool TieneNivel(const QString &clave)
{
    if (NivelActual == 0)
        return true;
    dao::Recordset niveles = BaseDatos.openRecordset(u"Niveles"_s);
    niveles.setIndex(u"nivel");
    niveles.seek(u"=", NivelActual);
    return !niveles.noMatch() && niveles.ordinal(clave) >= 0 && niveles[clave].truth();
}

QString entradaDeNivel(dao::Recordset &niveles)
{
    return basic::format(niveles[u"Nivel"], u"00") + u" - "_s + niveles[u"Descripcion"].text();
}

QStringList entradasDeNivel()
{
    QStringList entradas;
    dao::Recordset niveles = BaseDatos.openRecordset(u"Niveles"_s);
    niveles.setIndex(u"nivel");
    for (; !niveles.eof(); niveles.moveNext())
        entradas += entradaDeNivel(niveles);
    return entradas;
}

int nivelDeEntrada(const QString &entrada)
{
    return static_cast<int>(basic::val(entrada.left(2)));
}

const QStringList tiposDeUsuario = {u"Médico"_s, u"Secretario/a"_s, u"Administrativo!"_s};

QString tipoDeLetra(const QString &letra)
{
    for (const QString &tipo : tiposDeUsuario)
        if (tipo.left(1) == letra)
            return tipo;
    return {};
}

} // namespace MODULE11
