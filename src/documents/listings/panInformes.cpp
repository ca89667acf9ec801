#include "documents/listings/panInformes.h"

#include "core/reports/informes.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/session.h"
#include "documents/listings/pedido.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

panInformes::panInformes() : Form(u"panInformes"_s)
{
    setWindowTitle(u"Informes"_s);
    disponer();
    conectar();
}

void panInformes::disponer()
{
    Combo1.setMinimumContentsLength(40);
    setContents(this, Column{
                          Group(u"Fechas de las consultas"_s,
                                Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Stretch()}),
                          Group(u"Consultas"_s, Row{Command2, Command5, Stretch()}),
                          Group(u"Consultas con un diagnóstico"_s,
                                Column{Fields{{u"Dia&gnóstico :"_s, Row{Expanding(Combo1), Command8}}},
                                       Row{Command3, Command6, Stretch()}}),
                          Group(u"Pacientes"_s, Column{Fields{{u"&Profesional :"_s, Combo2}},
                                                       Row{Command4, Command7, Stretch()}}),
                          Stretch(),
                          Row{Stretch(), Command1},
                      });
    resize(640, 460);
}

void panInformes::conectar()
{
    connect(&Command1, &QPushButton::clicked, this, &panInformes::unload);
    connect(&Command2, &QPushButton::clicked, this, [this] {
        if (const auto periodo = seleccion::periodoElegido(dt1, dt2))
            informes::muestra(u"consultorio.rpt"_s, seleccion::deConsultas(*periodo));
    });
    connect(&Command3, &QPushButton::clicked, this, [this] {
        const auto periodo = seleccion::periodoElegido(dt1, dt2);
        if (const auto diagnostico = periodo ? diagnosticoEscrito() : std::nullopt)
            informes::muestra(u"patologia.rpt"_s, seleccion::dePatologia(*periodo, *diagnostico));
    });
    connect(&Command4, &QPushButton::clicked, this, [this] {
        if (hayProfesional())
            informes::muestra(u"pacientes.rpt"_s, seleccion::dePacientes(seleccion::claveElegida(Combo2)));
    });
    connect(&Command5, &QPushButton::clicked, this, [this] {
        if (const auto periodo = seleccion::periodoElegido(dt1, dt2))
            MODULE11::MuestraListado(seleccion::listaDeConsultas(*periodo), u"Listado de Consultas"_s);
    });
    connect(&Command6, &QPushButton::clicked, this, [this] {
        const auto periodo = seleccion::periodoElegido(dt1, dt2);
        if (const auto diagnostico = periodo ? diagnosticoEscrito() : std::nullopt)
            MODULE11::MuestraListado(seleccion::listaPorDiagnostico(*periodo, *diagnostico),
                                     u"Listado de Consultas"_s);
    });
    connect(&Command7, &QPushButton::clicked, this, [this] {
        if (hayProfesional())
            MODULE11::MuestraListado(seleccion::listaDePacientes(seleccion::claveElegida(Combo2)),
                                     u"Listado de Pacientes"_s);
    });
    connect(&Command8, &QPushButton::clicked, this, &panInformes::elegirDiagnostico);
    Command8.setEnabled(bool(ports::eligeDiagnostico));
}

void panInformes::load()
{
    MODULE11::LlenaLista(Combo1, u"Select Descripcion from DIAGPERSONALES order by Descripcion"_s,
                         u"Descripcion");
    Combo1.setValue({});
    services::agregarConClave(Combo2, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    Combo2.setCurrentIndex(0);
    if (MODULE11::TipoUsuario == u"M") {
        Combo2.setValue(MODULE11::DrActual);
        Combo2.setEnabled(false);
    }
}

void panInformes::elegirDiagnostico()
{
    if (const auto elegido = ports::eligeDiagnostico())
        Combo1.setValue(elegido->nombre);
}

std::optional<QString> panInformes::diagnosticoEscrito()
{
    const QString diagnostico = Combo1.value().trimmed();
    if (!diagnostico.isEmpty())
        return diagnostico;
    const QString motivo = u"Escriba o elija un diagnóstico."_s;
    MODULE11::MuestraError(motivo);
    markWrong(Combo1, motivo);
    return std::nullopt;
}

/// A doctor whose name is not in the table of professionals has no patients to list, least of all
/// everybody's.
bool panInformes::hayProfesional()
{
    if (Combo2.currentIndex() >= 0)
        return true;
    MODULE11::MuestraError(u"«%1» no está en la tabla de profesionales."_s.arg(MODULE11::DrActual));
    return false;
}

#include "moc_panInformes.cpp"
