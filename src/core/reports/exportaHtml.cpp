#include "core/reports/exportaHtml.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/progress.h"
#include "platform/reports/error.h"
#include "platform/shell/shell.h"

#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace informes
{

namespace
{

constexpr qint64 filasPorAviso = 500;

/// The file tells no character set: what is not plain is written by its number.
QByteArray seguro(const QString &texto)
{
    QByteArray html;
    for (const char32_t signo : texto.toHtmlEscaped().toUcs4()) {
        if (signo < 0x80)
            html += static_cast<char>(signo);
        else
            html += "&#" + QByteArray::number(static_cast<quint32>(signo)) + ';';
    }
    return html;
}

/// Numbers of taxpayers and the like are read in groups.
bool seAgrupa(const QString &campo)
{
    return campo.contains(u"cuit", Qt::CaseInsensitive) || campo.contains(u"iden", Qt::CaseInsensitive);
}

QByteArray celda(const dao::Recordset &filas, qint64 fila, int ordinal, bool agrupada)
{
    basic::Value valor;
    basic::ignoring({dao::Error::RecordDeleted}, [&] { valor = filas.valueAt(fila, ordinal); });
    if (valor.isBlank())
        return "&nbsp;&nbsp;&nbsp; ";
    return seguro(agrupada ? basic::format(valor, u"##-########-#") : valor.text());
}

} // namespace

bool escribeHtml(QIODevice &archivo, const dao::Recordset &filas, const QString &titulo, int ancho,
                 const std::optional<Periodo> &periodo, const std::function<bool(qint64)> &sigue)
{
    const std::vector<dao::FieldDef> &campos = filas.fields();
    QByteArray html = "<TABLE border=1 cellPadding=2 cellSpacing=0 width=" + QByteArray::number(ancho) +
                      " bordercolor=#808080><TBODY><TR vAlign=top><TD align=middle colSpan=" +
                      QByteArray::number(campos.size()) +
                      "><FONT face=Arial size=2><B><STRONG> I n f o r m e : " + seguro(titulo);
    if (periodo)
        html += ' ' + seguro(basic::format(periodo->first, u"dd/mm/yyyy") + u" al "_s +
                             basic::format(periodo->second, u"dd/mm/yyyy"));
    html += "</STRONG></B></FONT></TD></TR>\n<TR vAlign=top>";
    for (const dao::FieldDef &campo : campos)
        html += "<TD width=500 bgcolor=#45CFCC><center><FONT face=Arial size=1><STRONG><B>" +
                seguro(campo.name) + "</B> </STRONG></FONT></TD>";
    html += "</TR>\n";
    for (qint64 fila = 0; filas.hasRow(fila); ++fila) {
        html += "<TR vAlign=top>";
        for (std::size_t i = 0; i < campos.size(); ++i)
            html += "<TD width=500><center><FONT face=Arial size=1>" +
                    celda(filas, fila, static_cast<int>(i), seAgrupa(campos[i].name)) + "  </FONT></TD>";
        html += "</TR>\n";
        if (fila % filasPorAviso == 0) {
            archivo.write(std::exchange(html, {}));
            if (!sigue(fila))
                return false;
        }
    }
    archivo.write(html + "</TABLE>");
    return true;
}

void exportaHtml(const QString &sql, const QString &titulo, int ancho, const std::optional<Periodo> &periodo)
{
    const auto pedido = forms::inputBox(u"Ingrese el nombre del archivo HTM a exportar : "_s, titulo);
    if (!pedido || pedido->trimmed().isEmpty())
        return;
    QString nombre = pedido->trimmed();
    if (const QString final = nombre.toUpper(); !final.endsWith(u"HTM") && !final.endsWith(u"HTML"))
        nombre += u".HTM"_s;
    const QString ruta = basic::programFile(nombre);
    const dao::Recordset filas = MODULE11::BaseDatos.openRecordset(sql, dao::Recordset::Kind::Dynaset);
    QSaveFile archivo(ruta);
    forms::Progress avance(u"Se guarda la fila"_s);
    const auto sigue = [&](qint64 fila) { return avance.tell(fila); };
    const bool abierto = archivo.open(QIODevice::WriteOnly);
    if (abierto && !escribeHtml(archivo, filas, titulo, ancho, periodo, sigue))
        return;
    if (!abierto || !archivo.commit())
        throw reports::Error(reports::Error::Output,
                             u"No se pudo guardar el archivo %1: %2"_s.arg(ruta, archivo.errorString()));
    shell::openDocument(ruta);
}

} // namespace informes
