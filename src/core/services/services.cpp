#include "core/services/services.h"

#include "core/services/buscaDato.h"
#include "core/services/panListados.h"
#include "core/services/selagenda.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/form.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>

#include <array>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

constexpr std::array<QStringView, 7> dias = {u"Domingo", u"Lunes",   u"Martes", u"Miercoles",
                                             u"Jueves",  u"Viernes", u"Sabado"};
constexpr std::array<QStringView, 12> meses = {u"Enero",     u"Febrero", u"Marzo",     u"Abril",
                                               u"Mayo",      u"Junio",   u"Julio",     u"Agosto",
                                               u"Setiembre", u"Octubre", u"Noviembre", u"Diciembre"};

/// The field's values that are not Null.
QStringList valores(const QString &sql, QStringView campo)
{
    QStringList textos;
    dao::Recordset filas = BaseDatos.openRecordset(sql);
    for (; !filas.eof(); filas.moveNext())
        if (const basic::Value valor = filas[campo]; !valor.isNull())
            textos += valor.text();
    return textos;
}

bool hayFilas(const QString &sql)
{
    return !BaseDatos.openRecordset(sql).eof();
}

} // namespace

bool Pregunta(const QString &texto)
{
    return forms::askBox(texto, u"Pregunta"_s);
}

bool PreguntaSiBorra(const QString &texto)
{
    return forms::askBox(texto, u"Pregunta"_s, forms::Answer::No);
}

void Aviso(const QString &texto)
{
    forms::msgBox(texto, forms::Icon::Information, u"Mensaje / Aviso"_s);
}

void MuestraError(const QString &texto)
{
    forms::msgBox(texto, forms::Icon::Critical, u"E r r o r"_s);
}

basic::Value BuscaCampo(const QString &sql, QStringView campo)
{
    dao::Recordset filas = BaseDatos.openRecordset(sql);
    if (filas.eof())
        return basic::Null{};
    return filas[campo];
}

void LlenaLista(QComboBox &lista, const QString &sql, QStringView campo)
{
    if (!hayFilas(sql))
        return;
    lista.clear();
    lista.addItems(valores(sql, campo));
}

void LlenaLista(QListWidget &lista, const QString &sql, QStringView campo)
{
    if (!hayFilas(sql))
        return;
    lista.clear();
    lista.addItems(valores(sql, campo));
}

bool BuscaEnLista(dao::Recordset &recordset, const QString &campo)
{
    buscaDato dialogo;
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return true;
    QApplication::processEvents(); // the closing dialogue's place is painted before a long search
    return dialogo.mover(recordset, campo);
}

void MuestraListado(const QString &sql, const QString &titulo)
{
    panListados listado(sql, titulo);
    listado.showModal();
}

basic::Value ProximoCodigo(const QString & /*titulo*/, const QString &tabla, const QString &campo)
{
    dao::Recordset filas = BaseDatos.openRecordset(u"Select * from [%1] order by [%2]"_s.arg(tabla, campo));
    if (filas.eof())
        return 1; // the design's other branch is for a field type that this engine does not have
    filas.moveLast();
    if (const basic::Value ultimo = filas[campo]; ultimo.isNumeric())
        return ultimo.integer() + 1;
    const auto codigo = forms::inputBox(
        u"Ingrese el nuevo código para el campo %1 de la tabla %2"_s.arg(campo, tabla), u"Ingrese Codigo"_s);
    return codigo ? basic::Value(*codigo) : basic::Value();
}

QString TipoDeCampo(const QString &tabla, QStringView campo)
{
    const dao::TableDef definicion = BaseDatos.tableDef(tabla);
    const dao::FieldDef *columna = definicion.field(campo);
    if (!columna)
        throw dao::Error(dao::Error::ItemNotFound, u"No se encuentra el campo '%1'."_s.arg(campo));
    switch (columna->type) {
    case dao::FieldType::Text:
        return u"T"_s;
    case dao::FieldType::Memo:
        return u"M"_s;
    case dao::FieldType::Date:
    case dao::FieldType::Time:
        return u"D"_s;
    case dao::FieldType::Bit:
        return u"L"_s;
    default:
        return u"N"_s;
    }
}

QString NombreDia(int dia)
{
    return dia >= 1 && dia <= 7 ? dias[static_cast<std::size_t>(dia - 1)].toString() : QString();
}

QString NombreMes(int mes)
{
    return mes >= 1 && mes <= 12 ? meses[static_cast<std::size_t>(mes - 1)].toString() : QString();
}

QString NombreMesListado(int mes)
{
    return mes == 9 ? u"Septiembre"_s : NombreMes(mes);
}

QString FechaEnLetras(basic::Date fecha)
{
    const QDate dia = fecha.date();
    return u"%1 %2 de %3 de %4"_s.arg(NombreDia(basic::weekday(fecha)), basic::format(dia.day(), u"##"),
                                      NombreMes(dia.month()), basic::format(dia.year(), u"####"));
}

basic::Date PideFecha(const QString &fecha)
{
    selagenda dialogo(basic::toDate(fecha).value_or(basic::today()));
    dialogo.showModal();
    return dialogo.value();
}

void CentraVentana(QWidget &ventana)
{
    forms::centreOnScreen(&ventana);
}

void RelojEspera()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void RelojNormal()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

bool DescargaVentanas()
{
    for (qsizetype antes = -1;;) {
        const QList<forms::Form *> abiertas = forms::formsByActivity();
        if (abiertas.isEmpty() || abiertas.size() == antes)
            return abiertas.isEmpty();
        antes = abiertas.size();
        abiertas.first()->unload();
    }
}

void MuestraAyudante(const QString &)
{
}

void OcultaAyudante()
{
}

} // namespace MODULE11
