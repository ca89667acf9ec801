#include "core/reports/informes.h"

#include "core/reports/panCrystal.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "platform/forms/progress.h"
#include "platform/settings/settings.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace informes
{

namespace
{

/// What the practice told of itself; nothing where it has not.
QString registrado(const QString &clave)
{
    const QString dato = settings::getSetting(u"Usuario"_s, clave);
    return dato.contains(u'<') ? QString() : dato;
}

reports::Report informe(const QString &archivo, const QString &seleccion, const reports::Parameters &datos)
{
    return reports::Report(reports::readReportFile(ruta(archivo)), MODULE11::BaseDatos, seleccion,
                           datosDeLaSesion(datos));
}

/// Where a list is proposed to be kept: the person's own folder, under its title.
QString pideArchivo(const QString &titulo, const QString &sufijo, const QString &filtro)
{
    QString nombre = titulo;
    nombre.replace(u'/', u'-');
    return forms::saveFileDialog(u"Guardar"_s, QDir::home().filePath(nombre + sufijo), filtro);
}

} // namespace

reports::Parameters datosDeLaSesion(const reports::Parameters &datos)
{
    reports::Parameters todos{
        {u"profesional"_s, MODULE11::DrActual},       {u"usuario"_s, MODULE11::UsuarioActual},
        {u"matricula"_s, registrado(u"Matricula"_s)}, {u"especialidad"_s, registrado(u"Especialidad"_s)},
        {u"domicilio"_s, registrado(u"Domicilio"_s)}, {u"localidad"_s, registrado(u"Localidad"_s)},
        {u"telefonos"_s, registrado(u"Telefonos"_s)},
    };
    todos.insert(datos);
    return todos;
}

QString ruta(const QString &archivo)
{
    const QDir carpeta(basic::programFile(u"informes"_s));
    for (const QString &nombre : carpeta.entryList(QDir::Files))
        if (nombre.compare(archivo, Qt::CaseInsensitive) == 0)
            return carpeta.filePath(nombre);
    return carpeta.filePath(archivo);
}

void muestra(const QString &archivo, const QString &seleccion, const reports::Parameters &datos)
{
    panCrystal(informe(archivo, seleccion, datos)).showModal();
}

bool imprime(const QString &archivo, const QString &seleccion, const reports::Parameters &datos)
{
    reports::Report aImprimir = informe(archivo, seleccion, datos);
    const auto eleccion = printing::defaultChoice(aImprimir.title());
    if (!eleccion)
        return false;
    forms::Progress avance(u"Se imprime la página"_s);
    return reports::print(aImprimir, *eleccion, [&](qint64 pagina) { return avance.tell(pagina + 1); });
}

void escribePdf(const QString &archivo, const QString &seleccion, const QString &destino)
{
    reports::Report aGuardar = informe(archivo, seleccion, {});
    printing::Choice eleccion;
    eleccion.file = destino;
    reports::print(aGuardar, eleccion);
}

void guardaPdf(reports::Report &informe)
{
    printing::Choice eleccion;
    eleccion.file = pideArchivo(informe.title(), u".pdf"_s, u"Archivo PDF (*.pdf)"_s);
    if (eleccion.file.isEmpty())
        return;
    forms::Progress avance(u"Se guarda la página"_s);
    reports::print(informe, eleccion, [&](qint64 pagina) { return avance.tell(pagina + 1); });
}

void exportaCsv(const reports::Listing &lista, const QString &titulo)
{
    const QString archivo = pideArchivo(titulo, u".csv"_s, u"Texto con separadores (*.csv)"_s);
    if (archivo.isEmpty())
        return;
    forms::Progress avance(u"Se guarda la fila"_s);
    reports::writeCsv(lista, archivo, [&](qint64 fila) { return avance.tell(fila); });
}

void exportaPlanilla(const reports::Listing &lista, const QString &titulo)
{
    const QString archivo = pideArchivo(titulo, u".xlsx"_s, u"Planilla de cálculo (*.xlsx)"_s);
    if (archivo.isEmpty())
        return;
    forms::Progress avance(u"Se guarda la fila"_s);
    reports::writeSpreadsheet(lista, titulo, archivo, [&](qint64 fila) { return avance.tell(fila); });
}

} // namespace informes
