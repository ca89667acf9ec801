#include "clinical/summary/panelGineco.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/database.h"

#include <QEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace clinical
{

namespace
{

const QStringList cantidades = {u"Irregular"_s, u"Escaso"_s, u"Excesivo"_s, u"Fuerte"_s, u"Muy Fuerte"_s};
const QStringList anticonceptivos = {
    u"Ninguno"_s, u"Anticonceptivos orales"_s, u"D.I.U."_s, u"Preservativo"_s, u"Inyectable"_s,
    u"Ritmo"_s,   u"Ligadura tubaria"_s};
const QString sinGestasLegibles = u"1"_s;

} // namespace

PanelGineco::PanelGineco()
    : cboCantidad(u"cboCantidad"_s, cantidades, true),
      cbomac(u"cbomac"_s, anticonceptivos, true), columnas_{{&dtfum, u"dum"_s},
                                                            {&txtGestas, u"Gestas"_s},
                                                            {&txtParidad, u"Paridad"_s},
                                                            {&txtCiclos, u"Ciclos Menstruales"_s},
                                                            {&cboCantidad, u"Ciclos Cantidad"_s},
                                                            {&txtDolor, u"Ciclos Dolor"_s},
                                                            {&cbomac, u"Metodo Anticonceptivo"_s},
                                                            {&txtPets, u"Pets"_s},
                                                            {&txtMenarca, u"Menarca"_s}}
{
    for (const Columna &columna : columnas_)
        columna.control->installEventFilter(this);
}

Item PanelGineco::disposicion()
{
    return Row{
        Expanding(Fields{{u"F.U.M. :"_s, dtfum},
                         {u"Gestas :"_s, txtGestas},
                         {u"Paridad :"_s, txtParidad},
                         {u"M.A.C. :"_s, cbomac},
                         {u"P.E.T.S. :"_s, txtPets}}),
        Expanding(Fields{{u"Ciclos menstruales :"_s, txtCiclos},
                         {u"Cantidad :"_s, cboCantidad},
                         {u"Dolor :"_s, txtDolor},
                         {u"Menarca :"_s, txtMenarca}}),
    };
}

void PanelGineco::mostrar(qint64 paciente)
{
    paciente_ = paciente;
    dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
        u"Select * from Gineco where idPaciente = %1"_s.arg(paciente), dao::Recordset::Kind::Snapshot);
    for (const Columna &columna : columnas_)
        mostrarValor(columna, fila.eof() ? basic::Value() : fila[columna.nombre].value());
}

void PanelGineco::mostrarValor(const Columna &columna, const basic::Value &valor)
{
    if (auto *fecha = qobject_cast<DTPicker *>(columna.control))
        fecha->setFieldValue(valor);
    else if (auto *lista = qobject_cast<ComboBox *>(columna.control))
        lista->setValue(valor.text());
    else
        static_cast<TextBox *>(columna.control)->setText(valor.text());
}

basic::Value PanelGineco::valorDe(const Columna &columna) const
{
    if (const auto *fecha = qobject_cast<const DTPicker *>(columna.control))
        return fecha->fieldValue();
    QString texto;
    if (const auto *lista = qobject_cast<const ComboBox *>(columna.control))
        texto = lista->value();
    else
        texto = static_cast<const TextBox *>(columna.control)->text();
    return texto.isEmpty() ? basic::Value(basic::Null{}) : basic::Value(texto);
}

bool PanelGineco::eventFilter(QObject *control, QEvent *evento)
{
    if (evento->type() == QEvent::FocusOut)
        for (const Columna &columna : columnas_)
            if (columna.control == control)
                escribir(columna);
    return false;
}

/// Nothing is written that was not changed: a page that is only looked at makes no gynaecological record.
void PanelGineco::escribir(const Columna &columna)
{
    if (auto *fecha = qobject_cast<DTPicker *>(columna.control);
        paciente_ == 0 || (fecha && !fecha->readable()))
        return;
    if (columna.control == &txtGestas && !txtGestas.text().isEmpty() && !basic::isNumeric(txtGestas.text()))
        txtGestas.setText(sinGestasLegibles);
    const basic::Value valor = valorDe(columna);
    dao::Recordset fila =
        MODULE11::BaseDatos.openRecordset(u"Select * from Gineco where idPaciente = %1"_s.arg(paciente_));
    const basic::Value habia = fila.eof() ? basic::Value() : fila[columna.nombre].value();
    if (valor.text() == habia.text())
        return;
    if (fila.eof()) {
        fila.addNew();
        fila[u"idPaciente"] = paciente_;
    } else {
        fila.edit();
    }
    fila[columna.nombre] = valor;
    fila.update();
}

} // namespace clinical

#include "moc_panelGineco.cpp"
