#include "specialties/eye/panOft.h"

#include "core/reports/informes.h"
#include "specialties/eye/impri2.h"
#include "specialties/eye/panEvolOftalmo.h"
#include "specialties/eye/registrarOftalmo.h"
#include "specialties/eye/visor.h"

using namespace Qt::StringLiterals;
using namespace forms;

panOft::panOft()
    : ListaDelPaciente(u"panOft"_s, u"Oftalmología"_s,
                       {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 90},
                        {u"Motivo"_s, u"motivo"_s, {}, 200},
                        {u"Diagnóstico"_s, u"diagnostico"_s, {}, 220},
                        {u"A.V. O.D."_s, u"aguVisOdCCC"_s, {}, 80},
                        {u"A.V. O.I."_s, u"aguVisOiCCC"_s, {}, 80},
                        {u"P.I.O. O.D."_s, u"tensionocuod"_s, {}, 80},
                        {u"P.I.O. O.I."_s, u"tensionocuoi"_s, {}, 80}},
                       u"Select * from consultaOftalmo where paciente = %1 order by fecha"_s)
{
    const auto dibujos = [this](oftalmo::Clase clase) {
        return [this, clase] { oftalmo::dibujoOjo(paciente(), clase); };
    };
    setContents(
        this,
        Column{
            Expanding(DBGrid1),
            Row{command(u"Command5"_s, u"&Nueva..."_s, u"agregar"_s, [this] { agregar(); },
                        {.gate = u"AgregarConsultas"_s}),
                rowCommand(u"Command4"_s, u"&Editar..."_s, u"editar"_s, [this] { editar(); }),
                rowCommand(u"Command2"_s, u"&Anteojos..."_s, u"ver"_s, [this] { anteojos(); }),
                rowCommand(u"Command1"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }), Stretch()},
            Row{rowCommand(u"Command6"_s, u"&Fondo de ojos"_s, u"oftalmologia"_s,
                           dibujos(oftalmo::Clase::Fondo)),
                rowCommand(u"Command7"_s, u"&Biomicroscopia"_s, u"oftalmologia"_s,
                           dibujos(oftalmo::Clase::Biomicroscopia)),
                rowCommand(u"Command8"_s, u"E&volución..."_s, u"curvas"_s, [this] { evolucion(); }),
                Stretch(), closes(u"Command3"_s, u"&Cerrar"_s)},
        });
    connect(&DBGrid1, &DBGrid::accepted, this, &panOft::editar);
    resize(900, 440);
}

void panOft::rowShown()
{
    visita_ = Data1.hasRow() ? Data1.recordset()[u"idConsulta"].integer() : 0;
}

void panOft::agregar()
{
    if (paciente() != 0 && registrarOftalmo(paciente(), 0))
        reread();
}

void panOft::editar()
{
    if (visita_ != 0 && registrarOftalmo(paciente(), visita_))
        reread();
}

void panOft::imprimir()
{
    informes::muestra(u"oftalmo.rpt"_s, u"{ConsultaOftalmo.idConsulta} = %1"_s.arg(visita_));
}

void panOft::anteojos()
{
    impri2 receta(paciente(), visita_);
    receta.showModal();
}

void panOft::evolucion()
{
    panEvolOftalmo curvas;
    curvas.setTag(tag());
    curvas.showModal();
}

#include "moc_panOft.cpp"
