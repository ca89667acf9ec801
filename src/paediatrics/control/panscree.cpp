#include "paediatrics/control/panscree.h"

#include "core/records/fichaDelPaciente.h"
#include "core/reports/papel.h"
#include "core/services/paciente.h"

using namespace Qt::StringLiterals;
using namespace forms;

panscree::panscree() : Form(u"panscree"_s)
{
    setWindowTitle(u"Datos de Screening"_s);
    setContents(this, Column{lblPaciente, panel_.contenido(), Row{Command3, Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this, &panscree::guardar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panscree::imprimir);
}

void panscree::activate()
{
    const auto paciente = records::pacienteDe(*this);
    if (!paciente || *paciente == paciente_)
        return;
    paciente_ = *paciente;
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    panel_.mostrar(sano::screening(paciente_));
}

void panscree::guardar()
{
    sano::guardar(paciente_, panel_.pruebas());
    answer(u"SI"_s);
}

void panscree::imprimir()
{
    const QString titulo = windowTitle() + u" de "_s + lblPaciente.caption();
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    papel.escribir(panel_.enPalabras().join(u'\n'), 11);
    papel.terminar();
}

#include "moc_panscree.cpp"
