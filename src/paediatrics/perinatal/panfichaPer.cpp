#include "paediatrics/perinatal/panfichaPer.h"

#include "core/reports/informes.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panfichaPer::panfichaPer() : Form(u"panfichaPer"_s)
{
    setWindowTitle(u"Impresión de ficha perinatal"_s);
    Label1.setWordWrap(true);
    setContents(this, Column{Label1, Stretch(), Row{Command3, Stretch(), Command1}});
    resize(460, 180);
    connect(&Command1, &QPushButton::clicked, this, &panfichaPer::unload);
    connect(&Command3, &QPushButton::clicked, this, [] {
        if (informes::imprime(u"fichap1.rpt"_s, {}))
            informes::imprime(u"fichap2.rpt"_s, {});
    });
}

#include "moc_panfichaPer.cpp"
