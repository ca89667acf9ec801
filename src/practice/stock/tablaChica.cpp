#include "practice/stock/tablaChica.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace stock
{

namespace
{

constexpr int largo = 50; // of the column

QString elemento(QStringView arreglo, int indice)
{
    return u"%1(%2)"_s.arg(arreglo).arg(indice);
}

} // namespace

TablaChica::TablaChica(int indice, Textos textos, const QString &agregar, const QString &quitar)
    : textos_(std::move(textos)), List1(elemento(u"List1", indice)),
      Command11(elemento(u"Command11", indice), agregar, u"agregar"_s),
      Command12(elemento(u"Command12", indice), quitar, u"quitar"_s)
{
    setContents(this, Column{Expanding(List1), Row{Command11, Command12}});
    connect(&Command11, &QPushButton::clicked, this, &TablaChica::agregar);
    connect(&Command12, &QPushButton::clicked, this, &TablaChica::quitar);
}

void TablaChica::llenar()
{
    List1.clear();
    dao::Recordset filas = BaseDatos.openRecordset(
        u"Select %1, Descripcion from %2 order by Descripcion"_s.arg(textos_.clave, textos_.tabla));
    for (; !filas.eof(); filas.moveNext()) {
        auto *linea = new QListWidgetItem(filas[1].text(), &List1);
        linea->setData(Qt::UserRole, filas[0].integer());
    }
}

void TablaChica::agregar()
{
    const QString texto = inputBox(textos_.pedido, textos_.titulo, {}, largo).value_or(QString()).trimmed();
    if (texto.isEmpty())
        return;
    BaseDatos.execute(u"INSERT INTO %1 (Descripcion) VALUES (%2)"_s.arg(textos_.tabla, dao::quoted(texto)));
    llenar();
    emit cambiada();
}

void TablaChica::quitar()
{
    const QListWidgetItem *linea = List1.currentItem();
    if (!linea) {
        MODULE11::MuestraError(u"Elija en la lista lo que quiere quitar."_s);
        return;
    }
    if (!MODULE11::PreguntaSiBorra(textos_.pregunta))
        return;
    BaseDatos.execute(u"DELETE * FROM %1 WHERE %2 = %3"_s.arg(
        textos_.tabla, textos_.clave, QString::number(linea->data(Qt::UserRole).toLongLong())));
    llenar();
    emit cambiada();
}

} // namespace stock

#include "moc_tablaChica.cpp"
