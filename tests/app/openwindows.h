#pragma once

#include "clinical/family/panResFliares.h"
#include "clinical/family/panSelAnteFliar.h"
#include "clinical/laboratory/panComparaAnalisis.h"
#include "clinical/laboratory/panInAn.h"
#include "clinical/laboratory/panNueAg.h"
#include "clinical/laboratory/panNueAnalisis.h"
#include "clinical/laboratory/panNueEstudio.h"
#include "clinical/laboratory/panTendencia.h"
#include "clinical/patients/panComFliar.h"
#include "clinical/patients/panNuePaciente.h"
#include "clinical/patients/panSelPaciente.h"
#include "clinical/visits/panNueConsulta.h"
#include "core/security/panNueUsuario.h"
#include "core/service/panSQL.h"
#include "core/services/panListados.h"
#include "core/session/screens.h"
#include "core/windows/panIngresoUsuario.h"
#include "core/windows/panSelProf.h"
#include "delivered.h"
#include "paediatrics/anthropometry/panMedidas.h"
#include "paediatrics/control/panscree.h"
#include "paediatrics/perinatal/panEvolEmbarazo.h"
#include "paediatrics/perinatal/panObservaRecien.h"
#include "paediatrics/perinatal/panOtrosRecien.h"
#include "paediatrics/pressure/panTomaTension.h"
#include "paediatrics/sight/panNueVisual.h"
#include "paediatrics/vaccines/panInfRelVac.h"
#include "paediatrics/vaccines/panPoneVacuna.h"
#include "paediatrics/vaccines/pannueVac.h"
#include "platform/forms/application.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "practice/affiliates/panConfCamposImport.h"
#include "practice/affiliates/panPruebaImport.h"
#include "practice/appointments/panCambiaEstadoTurno.h"
#include "practice/appointments/panDispTurnos.h"
#include "practice/appointments/panNueTurno.h"
#include "practice/billing/panFacLote.h"
#include "practice/billing/panMuesDetFactura.h"
#include "practice/cashbook/panCuentas.h"
#include "practice/cashbook/panFilCaja.h"
#include "practice/cashbook/panGastos.h"
#include "practice/cashbook/panInfCaja.h"
#include "practice/daybook/panEdConPrestacion.h"
#include "practice/professionals/panNueProfesional.h"
#include "practice/stock/panNueArticulo.h"
#include "practice/stock/panNueMovStock.h"
#include "practice/stock/panNueProveedor.h"
#include "practice/tariffs/panAumento.h"
#include "practice/tariffs/panNuePrestacion.h"
#include "specialties/cardiology/panListaPeso.h"
#include "specialties/cardiology/panNuePeso.h"
#include "specialties/cardiology/panNueRegCardio.h"
#include "specialties/cardiology/panRxDiag.h"
#include "specialties/eye/impri2.h"
#include "specialties/eye/panEstrabismo.h"
#include "specialties/eye/panEvolOftalmo.h"
#include "specialties/eye/pangraBio.h"
#include "specialties/eye/winModConsulta.h"
#include "specialties/gynaecology/panExaGineco.h"
#include "specialties/gynaecology/panNueExGesta.h"
#include "specialties/gynaecology/panNueExamenGineco.h"
#include "specialties/odontology/PannuePractico.h"
#include "specialties/odontology/panComparaEsquemas.h"
#include "specialties/odontology/panNuePresu.h"
#include "specialties/risk/panSelRiesgoCardio.h"
#include "subsystems.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>

#include <map>

/// What the tests of all windows share.

using Opening = std::function<std::unique_ptr<forms::Form>()>;

template <class Window>
Opening opening()
{
    return [] { return std::make_unique<Window>(); };
}

/// Every window that a menu or another subsystem opens, and the dialogues behind them.
inline std::map<QString, Opening> windows()
{
    std::map<QString, Opening> all = {
        {QStringLiteral("panNuePaciente"), opening<panNuePaciente>()},
        {QStringLiteral("panComFliar"), opening<panComFliar>()},
        {QStringLiteral("panSelPaciente"), opening<panSelPaciente>()},
        {QStringLiteral("panNueConsulta"), opening<panNueConsulta>()},
        {QStringLiteral("panComparaAnalisis"), opening<panComparaAnalisis>()},
        {QStringLiteral("panInAn"), opening<panInAn>()},
        {QStringLiteral("panTendencia"), opening<panTendencia>()},
        {QStringLiteral("panNueAg"), opening<panNueAg>()},
        {QStringLiteral("panNueAnalisis"), opening<panNueAnalisis>()},
        {QStringLiteral("panNueEstudio"), opening<panNueEstudio>()},
        {QStringLiteral("panNueUsuario"), opening<panNueUsuario>()},
        {QStringLiteral("panIngresoUsuario"), opening<panIngresoUsuario>()},
        {QStringLiteral("panSelProf"), opening<panSelProf>()},
        {QStringLiteral("panMedidas"), opening<panMedidas>()},
        {QStringLiteral("panscree"), opening<panscree>()},
        {QStringLiteral("panEvolEmbarazo"), opening<panEvolEmbarazo>()},
        {QStringLiteral("panOtrosRecien"), opening<panOtrosRecien>()},
        {QStringLiteral("panObservaRecien"), opening<panObservaRecien>()},
        {QStringLiteral("panTomaTension"), opening<panTomaTension>()},
        {QStringLiteral("panNueVisual"), opening<panNueVisual>()},
        {QStringLiteral("panListaPeso"), opening<panListaPeso>()},
        {QStringLiteral("panNuePeso"), opening<panNuePeso>()},
        {QStringLiteral("panNueRegCardio"), opening<panNueRegCardio>()},
        {QStringLiteral("panRxDiag"), opening<panRxDiag>()},
        {QStringLiteral("winModConsulta"), opening<winModConsulta>()},
        {QStringLiteral("pangraBio"), opening<pangraBio>()},
        {QStringLiteral("panGraFondo"), opening<panGraFondo>()},
        {QStringLiteral("pantextoojo"), opening<pantextoojo>()},
        {QStringLiteral("panEstrabismo"), opening<panEstrabismo>()},
        {QStringLiteral("panEvolOftalmo"), opening<panEvolOftalmo>()},
        {QStringLiteral("impri2"), [] { return std::make_unique<impri2>(1, 1); }},
        {QStringLiteral("panExaGineco"), opening<panExaGineco>()},
        {QStringLiteral("panExaColpo"), opening<panExaColpo>()},
        {QStringLiteral("panExaMamas"), opening<panExaMamas>()},
        {QStringLiteral("panNueExGesta"), opening<panNueExGesta>()},
        {QStringLiteral("panNueExamenGineco"), opening<panNueExamenGineco>()},
        {QStringLiteral("panNuePresu"), opening<panNuePresu>()},
        {QStringLiteral("PannuePractico"), opening<PannuePractico>()},
        {QStringLiteral("panComparaEsquemas"), opening<panComparaEsquemas>()},
        {QStringLiteral("panSelRiesgoCardio1"), opening<panSelRiesgoCardio1>()},
        {QStringLiteral("panSelRiesgoCardio2"), opening<panSelRiesgoCardio2>()},
        {QStringLiteral("panInfRelVac"), [] { return std::make_unique<panInfRelVac>(QString()); }},
        {QStringLiteral("panPoneVacuna"),
         [] { return std::make_unique<panPoneVacuna>(vacunas::Registro(), std::nullopt); }},
        {QStringLiteral("pannueVac"), opening<pannueVac>()},
        {QStringLiteral("panCambiaEstadoTurno"), opening<panCambiaEstadoTurno>()},
        {QStringLiteral("panDispTurnos"), [] { return std::make_unique<panDispTurnos>(basic::today(), 1); }},
        {QStringLiteral("panNueTurno"), opening<panNueTurno>()},
        {QStringLiteral("panSelAnteFliar"),
         [] { return std::make_unique<panSelAnteFliar>(1, QStringLiteral("Papa")); }},
        {QStringLiteral("panResFliares"), [] { return std::make_unique<panResFliares>(QStringList()); }},
        {QStringLiteral("panNueProfesional"), opening<panNueProfesional>()},
        {QStringLiteral("panGastos"), opening<panGastos>()},
        {QStringLiteral("panFilCaja"), opening<panFilCaja>()},
        {QStringLiteral("panInfCaja"), opening<panInfCaja>()},
        {QStringLiteral("panCuentas"), opening<panCuentas>()},
        {QStringLiteral("panNueArticulo"), [] { return std::make_unique<panNueArticulo>(1, std::nullopt); }},
        {QStringLiteral("panNueProveedor"), [] { return std::make_unique<panNueProveedor>(std::nullopt); }},
        {QStringLiteral("panNueMovStock"),
         [] { return std::make_unique<panNueMovStock>(stock::Sentido::Entrada, 1, std::nullopt); }},
        {QStringLiteral("panConfCamposImport"), opening<panConfCamposImport>()},
        {QStringLiteral("panPruebaImport"),
         [] {
             return std::make_unique<panPruebaImport>(afiliados::Mapa(), std::vector<QStringList>(),
                                                      QString());
         }},
        {QStringLiteral("panNuePrestacion"), opening<panNuePrestacion>()},
        {QStringLiteral("panAumento"), opening<panAumento>()},
        {QStringLiteral("panEdConPrestacion"), opening<panEdConPrestacion>()},
        {QStringLiteral("panFacLote"),
         [] { return std::make_unique<panFacLote>(QStringLiteral("X0001-00000001")); }},
        {QStringLiteral("panSQL"),
         [] {
             return std::make_unique<panSQL>(MODULE11::BaseDatos.tableDef(u"Caja"),
                                             QStringLiteral("Select * from Caja"));
         }},
        {QStringLiteral("panMuesDetFactura"), [] { return std::make_unique<panMuesDetFactura>(1); }},
    };
    for (const std::string_view name : screens::windows) {
        const auto window = screens::Window::find(QString::fromLatin1(name.data(), qsizetype(name.size())));
        // The backup tells what it is about before it shows: its script sees it.
        if (screens::has(*window) && name != "panBackup")
            all[window->text()] = [window = *window] { return screens::make(window); };
    }
    return all;
}

/// Every window over a practice of one patient: the main window's area, with the patient and the professional
/// that windows ask for.
class OpenWindows : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        qputenv("SANIRELL_CARPETA", DELIVERED); // its pictures
        static const bool prepared = [] {
            forms::Application::dress();
            app::prepare();
            return true;
        }();
        ASSERT_TRUE(prepared);
        run({"INSERT INTO Profesionales (idProfesional, Nombre, TipoPermiso) VALUES (1, 'Dr <Su Nombre>', 'T')",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], idProfesional, Sexo, [Fecha de Nacimiento]) "
             "VALUES (1, 'Álvarez Mía', 0, 'Mujer', cdate('15/03/2023'))",
             "INSERT INTO Consulta (Paciente, Fecha, Motivo) VALUES (1, cdate('15/03/2024'), 'Control')"});
        main.setCentralWidget(area);
        forms::setChildArea(area);
    }
    void TearDown() override
    {
        forms::setChildArea(nullptr);
        qunsetenv("SANIRELL_CARPETA");
        DeliveredBase::TearDown();
    }

    /// Calls `look` with each window, open in an area of this size.
    void inEach(QSize room, const std::function<void(forms::Form &)> &look)
    {
        main.resize(room);
        main.show();
        QCoreApplication::processEvents();
        for (const auto &[name, open] : windows()) {
            SCOPED_TRACE(name.toStdString());
            forms::Form *form = open().release();
            form->setTag(QStringLiteral("1"));
            form->showChild();
            QCoreApplication::processEvents();
            look(*form);
            form->unload();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    QMainWindow main;
    QMdiArea *area = new QMdiArea;
};
