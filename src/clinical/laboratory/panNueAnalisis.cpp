#include "clinical/laboratory/panNueAnalisis.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largoDelTexto = 100; // of Bioquimico and Descripcion

/// What is usual, and what the patient's earlier orders have.
void ofrecer(ComboBox &combo, const QString &campo, const QString &usual, qint64 paciente)
{
    MODULE11::LlenaLista(combo,
                         u"Select distinct [%1] from Analisis where paciente = %2 and [%1] <> %3"_s.arg(
                             campo, QString::number(paciente), dao::quoted(usual)),
                         campo);
    combo.insertItem(0, usual);
    combo.setValue(usual);
    combo.lineEdit()->setMaxLength(largoDelTexto);
}

} // namespace

panNueAnalisis::panNueAnalisis() : Form(u"panNueAnalisis"_s)
{
    setWindowTitle(u"Nuevo Analisis / Pedido de laboratorio"_s);
    Label1.setWordWrap(true);
    List1.ponerEnColumnas();
    setContents(this, Column{
                          Label1,
                          Row{Fields{{u"&Fecha :"_s, mFecha}}, Fields{{u"&Hora :"_s, mHora}},
                              Expanding(Fields{{u"T&ipo de análisis :"_s, comboTipoAnalisis}}),
                              Expanding(Fields{{u"&Bioquímico :"_s, comboBio}})},
                          Expanding(Above(u"&Tildar los estudios pedidos :"_s, List1)),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(1060, 510);
    connect(&Command1, &QPushButton::clicked, this, &panNueAnalisis::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueAnalisis::load()
{
    mFecha.setValue(basic::today());
    const QTime ahora = basic::now().time();
    mHora.setTime(QTime(ahora.hour(), ahora.minute())); // what is in sight is what is stored
    const qint64 paciente = services::numeroDePaciente(tag()).value_or(0);
    ofrecer(comboTipoAnalisis, u"Descripcion"_s, u"<Varios>"_s, paciente);
    ofrecer(comboBio, u"Bioquimico"_s, u"<No Aplicable>"_s, paciente);
    List1.llenar();
    List1.setFocus();
}

void panNueAnalisis::aceptar()
{
    if (mFecha.readable()) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Datos mal ingresados."_s);
    markWrong(mFecha, u"Una fecha"_s);
}

laboratorio::Pedido panNueAnalisis::pedido() const
{
    return {mFecha.value(), basic::Date(mHora.time()), comboBio.value(), comboTipoAnalisis.value(),
            List1.tildados()};
}

#include "moc_panNueAnalisis.cpp"
