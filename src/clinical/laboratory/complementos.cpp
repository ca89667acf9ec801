#include "clinical/laboratory/complementos.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/typeddate.h"
#include "platform/dao/sqltext.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace complementos
{

namespace
{

constexpr qsizetype largoDeRuta = 255;
constexpr int rutaDemasiadoLarga = 76;

dao::Recordset filaDe(qint64 paciente, const QString &examen)
{
    return BaseDatos.openRecordset(
        u"Select * from Complementos where Examen = %1 and idPaciente = %2"_s.arg(dao::quoted(examen))
            .arg(paciente));
}

/// A name may be that of any study: what cannot stand in the name of a file does not.
QString archivoDelInforme(qint64 paciente, const QString &examen)
{
    QString nombre = u"%1-%2.RTF"_s.arg(paciente).arg(examen);
    for (QChar prohibida : u"/\\:*?\"<>|"_s)
        nombre.replace(prohibida, u'_');
    return basic::programFile(u"docs/"_s + nombre);
}

/// Paths of older files begin with a backslash and mean the program's folder.
QString rutaEntera(const QString &ruta)
{
    if (!QFileInfo(ruta).isRelative())
        return ruta;
    return basic::programFile(ruta.startsWith(u'\\') ? ruta.sliced(1) : ruta);
}

std::vector<Imagen> imagenesDe(qint64 id)
{
    std::vector<Imagen> imagenes;
    for (dao::Recordset filas =
             BaseDatos.openRecordset(u"Select * from DetalleComplementos where idComplemento = %1"_s.arg(id));
         !filas.eof(); filas.moveNext())
        imagenes.push_back({filas[u"RutaArchivoImagen"].text(), filas[u"Fecha"].value()});
    return imagenes;
}

void comprobarRuta(const QString &ruta)
{
    if (ruta.size() > largoDeRuta)
        throw basic::Error(rutaDemasiadoLarga,
                           u"La ruta del archivo es demasiado larga, cópielo a otra carpeta:\n"_s + ruta);
}

/// The key of the row, which is the one just written when there was none.
qint64 escribirFila(qint64 paciente, const QString &examen, const QString &informe)
{
    dao::Recordset fila = filaDe(paciente, examen);
    const bool nueva = fila.eof();
    if (nueva)
        fila.addNew();
    else
        fila.edit();
    fila[u"idPaciente"] = paciente;
    fila[u"Examen"] = examen;
    fila[u"RutaArchivoTexto"] = informe;
    fila.update();
    if (nueva)
        fila.setBookmark(fila.lastModified());
    return fila[u"idComplemento"].integer();
}

void escribirImagenes(qint64 id, const std::vector<Imagen> &imagenes)
{
    BaseDatos.execute(u"Delete * from detalleComplementos where idComplemento = %1"_s.arg(id));
    dao::Recordset filas = BaseDatos.openRecordset(u"DetalleComplementos"_s);
    for (const Imagen &imagen : imagenes) {
        if (!QFileInfo(imagen.archivo).isFile())
            continue;
        filas.addNew();
        filas[u"idComplemento"] = id;
        filas[u"Fecha"] = imagen.fecha;
        filas[u"RutaArchivoImagen"] = imagen.archivo;
        filas.update();
    }
}

} // namespace

Complemento leer(qint64 paciente, const QString &examen)
{
    Complemento complemento{.informe = archivoDelInforme(paciente, examen), .imagenes = {}};
    dao::Recordset fila = filaDe(paciente, examen);
    if (fila.eof())
        return complemento;
    const QString guardado = rutaEntera(fila[u"RutaArchivoTexto"].text());
    if (!QFileInfo::exists(complemento.informe) && QFileInfo(guardado).isFile())
        complemento.informe = guardado;
    complemento.guardado = true;
    complemento.imagenes = imagenesDe(fila[u"idComplemento"].integer());
    return complemento;
}

void guardar(qint64 paciente, const QString &examen, const Complemento &complemento)
{
    comprobarRuta(complemento.informe);
    for (const Imagen &imagen : complemento.imagenes)
        comprobarRuta(imagen.archivo);
    dao::Batch lote(BaseDatos);
    escribirImagenes(escribirFila(paciente, examen, complemento.informe), complemento.imagenes);
    lote.commit();
}

std::optional<basic::Value> fechaEscrita(const QString &texto, QDate hoy)
{
    const QString limpio = texto.trimmed();
    if (limpio.isEmpty() || limpio == u"-" || limpio.compare(sinFecha, Qt::CaseInsensitive) == 0)
        return basic::Value(basic::Null{});
    const auto dia = basic::typedDate(limpio, hoy);
    return dia ? std::optional(basic::Value(basic::Date(*dia))) : std::nullopt;
}

} // namespace complementos
