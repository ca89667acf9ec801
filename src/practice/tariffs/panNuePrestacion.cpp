#include "practice/tariffs/panNuePrestacion.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "practice/tariffs/importe.h"
#include "practice/tariffs/tarifas.h"

using namespace Qt::StringLiterals;
using namespace forms;
using namespace tarifas;

namespace
{

constexpr int cifras = 20;

} // namespace

panNuePrestacion::panNuePrestacion() : Form(u"panNuePrestacion"_s)
{
    setWindowTitle(u"Nueva Prestación"_s);
    std::vector<FieldRow> campos;
    for (int i = 0; const Columna &columna : columnas) {
        TextBox &campo = Text1.add(i++, columna.tipo == Columna::Texto ? columna.largo : cifras);
        campos.push_back({columna.titulo.toString() + u" :"_s, campo});
    }
    setContents(this, Column{Fields{std::move(campos)}, Stretch(), Row{Stretch(), Command1, Command2}});
    resize(480, 400);
    connect(&Command1, &QPushButton::clicked, this, &panNuePrestacion::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

QWidget *panNuePrestacion::faltante()
{
    for (int i = 0; const Columna &columna : columnas) {
        TextBox &campo = Text1(i++);
        const QString texto = campo.text().trimmed();
        if (columna.tipo == Columna::Texto ? texto.isEmpty() : !importes::escrito(texto))
            return &campo;
    }
    return nullptr;
}

/// The code is unique by this check alone: the grid of the tariffs does without it.
void panNuePrestacion::aceptar()
{
    if (QWidget *campo = faltante()) {
        MODULE11::MuestraError(u"Error, datos mal ingresados !"_s);
        markWrong(*campo, u"Hay que completar todos los campos; los importes y cantidades son números"_s);
        return;
    }
    const dao::Recordset repetida = MODULE11::BaseDatos.openRecordset(
        u"Select * from prestaciones where codigo = "_s + dao::quoted(Text1(cCodigo).text().trimmed()));
    if (repetida.eof()) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Código duplicado!, intente con otro!"_s);
    markWrong(Text1(cCodigo), u"Otra prestación tiene este código"_s);
}

void panNuePrestacion::escribir(dao::Recordset &fila) const
{
    for (int i = 0; const Columna &columna : columnas) {
        const QString texto = Text1(i++).text().trimmed();
        if (columna.tipo == Columna::Texto)
            fila[columna.campo] = texto;
        else if (columna.tipo == Columna::Importe)
            fila[columna.campo] = *importes::escrito(texto);
        else
            fila[columna.campo] = basic::nearestWhole(importes::escrito(texto)->toDouble());
    }
}

#include "moc_panNuePrestacion.cpp"
