#include "practice/cashbook/panInfCaja.h"

#include "core/reports/informes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panInfCaja::panInfCaja() : Form(u"panInfCaja"_s)
{
    setWindowTitle(u"Informe contable"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Stretch()},
                          Fields{{u"C&uenta :"_s, Combo1}},
                          Stretch(),
                          Row{Stretch(), Command1, Command2},
                      });
    connect(&Command1, &QPushButton::clicked, this, &panInfCaja::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panInfCaja::unload);
}

void panInfCaja::load()
{
    caja::agregarCuentas(Combo1);
    Combo1.setCurrentIndex(0);
}

void panInfCaja::imprimir()
{
    informes::muestra(u"caja.rpt"_s, caja::seleccion(dt1.value(), dt2.value(), Combo1.value()));
}

#include "moc_panInfCaja.cpp"
