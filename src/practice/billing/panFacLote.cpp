#include "practice/billing/panFacLote.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panFacLote::panFacLote(const QString &numeroPropuesto) : Form(u"panFacLote"_s)
{
    setWindowTitle(u"Facturar lote seleccionado"_s);
    txtFactura.setText(numeroPropuesto);
    setContents(this, Column{
                          Fields{{u"&Factura Nº :"_s, txtFactura}, {u"Fec&ha :"_s, dt1}},
                          Check1,
                          Check2,
                          Check3,
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(360, 240);
    connect(&Command1, &QPushButton::clicked, this, [this] {
        if (dt1.readable())
            answer(u"SI"_s);
    });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

facturacion::Emision panFacLote::emision() const
{
    return {txtFactura.text().trimmed(), dt1.value(), Check1.isChecked(), Check2.isChecked()};
}

#include "moc_panFacLote.cpp"
