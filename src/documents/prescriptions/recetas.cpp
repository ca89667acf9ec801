#include "documents/prescriptions/recetas.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/shell/shell.h"

#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace MODULE11;

namespace recetas
{

namespace
{

const QString informe = u"receta.rpt"_s;

QString seleccion(qint64 idReceta)
{
    return u"{recetario.idReceta} = %1"_s.arg(idReceta);
}

/// A text as a file's name: the signs that one or another system does not take are left out.
QString nombreDeArchivo(QString texto)
{
    static const QRegularExpression ajenos(u"[\\\\/:*?\"<>|\\x00-\\x1f]"_s);
    return texto.remove(ajenos).simplified();
}

/// Where the PDFs for the mail program lie, which may read them any time; they go when the program ends.
QString carpetaDeCorreo()
{
    static const QTemporaryDir carpeta;
    return carpeta.path();
}

} // namespace

QString conPunto(const QString &texto)
{
    return texto + u'.';
}

qint64 registrar(qint64 paciente, const QString &texto)
{
    const basic::Value nombre =
        BuscaCampo(u"Select numero, [Apellido y nombres] from pacientes where numero = %1"_s.arg(paciente),
                   u"Apellido y nombres");
    dao::Recordset recetas = BaseDatos.openRecordset(u"Recetario"_s);
    recetas.addNew();
    recetas[u"Paciente"] = nombre;
    recetas[u"fecha"] = basic::today();
    recetas[u"Receta"] = conPunto(texto);
    recetas[u"idPaciente"] = paciente;
    recetas[u"Dr"] = DrActual;
    recetas.update();
    recetas.setBookmark(recetas.lastModified());
    return recetas[u"idReceta"].integer();
}

std::optional<QString> ultima(qint64 paciente)
{
    dao::Recordset recetas = BaseDatos.openRecordset(
        u"Select Receta from Recetario where idPaciente = %1 order by fecha desc, idReceta desc"_s.arg(
            paciente));
    if (recetas.eof())
        return {};
    const QString texto = recetas[u"Receta"].text();
    return texto.endsWith(u'.') ? texto.chopped(1) : texto;
}

bool imprimir(qint64 idReceta)
{
    return informes::imprime(informe, seleccion(idReceta));
}

bool enviarPorCorreo(qint64 idReceta)
{
    dao::Recordset receta = BaseDatos.openRecordset(
        u"Select Recetario.Paciente, Recetario.fecha, Pacientes.email from Recetario left join Pacientes on Recetario.idPaciente = Pacientes.Numero where Recetario.idReceta = %1"_s
            .arg(idReceta));
    if (receta.eof())
        return false;
    const QString titulo =
        u"Receta %1 %2"_s.arg(receta[u"Paciente"].text(), basic::format(receta[u"fecha"], u"dd-mm-yyyy"));
    const QString archivo = u"%1/%2.pdf"_s.arg(carpetaDeCorreo(), nombreDeArchivo(titulo));
    informes::escribePdf(informe, seleccion(idReceta), archivo);
    return shell::mail(receta[u"email"].text().trimmed(), titulo, archivo);
}

} // namespace recetas
