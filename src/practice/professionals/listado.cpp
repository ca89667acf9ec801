#include "practice/professionals/listado.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/printing/printer.h"

using namespace Qt::StringLiterals;

namespace practice
{

namespace
{

const QString titulo = u"Tabla de Profesionales"_s;

QFont letra(double puntos, bool negrita)
{
    QFont fuente(u"DejaVu Sans"_s);
    fuente.setPointSizeF(puntos);
    fuente.setBold(negrita);
    return fuente;
}

/// What is known of the professional, one line after the name.
QString datos(dao::Recordset &fila)
{
    QStringList textos;
    for (QStringView campo : {u"Especialidad", u"Domicilio", u"Localidad", u"Telefonos"})
        if (const QString texto = fila[campo].text().trimmed(); !texto.isEmpty())
            textos += texto;
    return textos.join(u" - "_s);
}

} // namespace

void imprimeProfesionales()
{
    printing::Choice impresora;
    if (!printing::chooserDialog(impresora, titulo))
        return;
    printing::Document hoja(impresora, titulo);
    hoja.setFont(letra(14, true));
    hoja.print(titulo);
    hoja.setFont(letra(9, false));
    hoja.print(basic::dateText(basic::today()) + u"\n"_s);
    dao::Recordset filas =
        MODULE11::BaseDatos.openRecordset(u"Select * from Profesionales order by Nombre"_s);
    for (; !filas.eof(); filas.moveNext()) {
        hoja.setFont(letra(10, true));
        hoja.print(filas[u"Nombre"].text());
        hoja.setFont(letra(10, false));
        hoja.print(datos(filas) + u"\n"_s);
    }
    hoja.endDoc();
}

} // namespace practice
