#include "paediatrics/perinatal/panResPerinat.h"

#include "core/records/fichaDelPaciente.h"
#include "core/reports/papel.h"
#include "core/services/hallazgosPerinatales.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "paediatrics/perinatal/panAntPerinatales.h"

using namespace Qt::StringLiterals;
using namespace forms;

panResPerinat::panResPerinat() : Form(u"panResPerinat"_s), Combo1(u"Combo1"_s, perinatal::gruposSanguineos)
{
    setWindowTitle(u"Ficha resumen perinatal"_s);
    campos_.ligar(u"Grupo sanguineo Madre"_s, Combo1);
    List3.setWordWrap(true);
    List3.setUniformItemSizes(false);
    setContents(this, Column{
                          Expanding(Row{Expanding(madre()), Expanding(recienNacido())}),
                          Expanding(Group(u"Lo que dice la ficha"_s, List3)),
                          Row{Command3, Command4, Stretch(), Command1, Command2},
                      });
    resize(1000, 640);
    connect(&Command1, &QPushButton::clicked, this, &panResPerinat::guardar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panResPerinat::abrirFicha);
    connect(&Command4, &QPushButton::clicked, this, &panResPerinat::imprimir);
}

Item panResPerinat::madre()
{
    const auto casilla = [this](const QString &columna) -> CheckBox & {
        return campos_.casilla(columna, columna);
    };
    return Column{
        campos_.textos({u"Edad de la Madre al Nacer"_s, u"Gestas de la Madre"_s, u"Paridad"_s,
                        u"Edad Gestacional madre"_s},
                       {{u"Grupo sanguineo Madre :"_s, Combo1}}),
        Group(u"Serología"_s, Grid(3, {campos_.casilla(u"sensibilización"_s, u"Sensibilización"_s),
                                       casilla(u"VDRL"_s), casilla(u"HIV Madre"_s),
                                       casilla(u"Chagas Madre"_s), casilla(u"Toxoplasmosis Madre"_s)})),
        Expanding(Group(u"Patologías perinatales"_s, patologias_.contenido())),
    };
}

Item panResPerinat::recienNacido()
{
    return Column{
        campos_.textos(
            {u"Apgar total 1 min"_s, u"Apgar total 5 min"_s, u"Peso al Nacer"_s, u"Talla al Nacer"_s}),
        Group(u"Líquido amniótico"_s, campos_.opciones(u"Tipo liquido amniotico"_s, 4)),
        Group(u"Sufrimiento fetal"_s, campos_.opciones(u"sufrimiento fetal"_s, 4)),
        Expanding(Group(u"Diagnósticos del recien nacido"_s, diagnosticos_.contenido())),
    };
}

void panResPerinat::activate()
{
    const auto numero = records::pacienteDe(*this);
    if (!numero || *numero == paciente_)
        return;
    paciente_ = *numero;
    leer();
    mostrada_ = escrita();
}

/// Of a patient who is not there the page stays empty, and there is nothing to write it for.
void panResPerinat::leer()
{
    auto paciente = services::paciente(paciente_);
    Command1.setEnabled(paciente.has_value());
    Command3.setEnabled(paciente.has_value());
    if (!paciente)
        return;
    setWindowTitle(u"Ficha resumen perinatal de "_s + (*paciente)[u"Apellido y Nombres"].text());
    mostrar();
}

void panResPerinat::mostrar()
{
    const perinatal::Ficha ficha = perinatal::leer(paciente_);
    campos_.mostrar(ficha.perinatal);
    patologias_.mostrar(ficha.patologias);
    diagnosticos_.mostrar(ficha.diagnosticos);
    List3.clear();
    List3.addItems(services::hallazgosPerinatales(paciente_));
}

perinatal::Ficha panResPerinat::escrita() const
{
    return {campos_.valores(), {}, patologias_.lineas(), diagnosticos_.lineas()};
}

void panResPerinat::guardar()
{
    perinatal::guardar(paciente_, escrita());
    answer(u"SI"_s);
}

bool panResPerinat::queryUnload()
{
    return paciente_ == 0 || escrita() == mostrada_ ||
           MODULE11::PreguntaSiBorra(u"Cierra sin guardar la ficha resumen perinatal"_s);
}

/// The whole record begins with what is typed here; what was accepted there is read back.
void panResPerinat::abrirFicha()
{
    panAntPerinatales ficha;
    ficha.setTag(tag());
    ficha.comenzarCon(escrita());
    ficha.showModal();
    if (ficha.tag() != u"SI")
        return;
    mostrar();
    mostrada_ = escrita();
}

/// The sentences are those of the record as it is kept.
void panResPerinat::imprimir()
{
    const auto impresora = printing::defaultChoice(windowTitle());
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    for (const auto &[titulo, lineas] : {std::pair{u"Lo que dice la ficha"_s, List3.lines()},
                                         {u"Patologías perinatales"_s, patologias_.lineas()},
                                         {u"Diagnósticos del recien nacido"_s, diagnosticos_.lineas()}}) {
        papel.escribir(u'\n' + titulo, 11, true);
        papel.escribir(lineas.isEmpty() ? u"-"_s : lineas.join(u'\n'), 10);
    }
    papel.terminar();
}

#include "moc_panResPerinat.cpp"
