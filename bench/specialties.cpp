#include "specialties.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/controls.h"
#include "specialties/gynaecology/panExaGineco.h"
#include "specialties/gynaecology/panGinecoGestas.h"
#include "specialties/risk/panEvalDeportiva.h"
#include "specialties/risk/panRiesgoOperatorio.h"
#include "specialties/risk/panTestCardio.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRadioButton>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr double patienceForAClick = 16, patienceForTheSportsForm = 150;
constexpr double patienceForAGestation = 120, patienceToSave = 80, patienceForADrawing = 120;
constexpr int controls = 40, examinations = 100000, marks = 100;
const QString mark = u"<Medición>"_s;

void click(QWidget &control)
{
    const QPointF at(control.width() / 2.0, control.height() / 2.0);
    for (const auto kind : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(kind, at, control.mapToGlobal(at), Qt::LeftButton,
                          kind == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&control, &event);
    }
    QApplication::processEvents();
}

void risks(const QString &patient, const Report &report)
{
    panTestCardio test;
    modally([&] { test.showModal(); },
            [&](forms::Form &window) {
                window.grab();
                double worst = 0;
                for (auto *option : window.findChildren<QRadioButton *>())
                    if (option->isVisible())
                        worst = std::max(worst, elapsed([&] {
                                             option->click();
                                             window.grab(option->geometry());
                                         }));
                report("heart test: click to result, worst", worst, patienceForAClick);
                window.unload();
            });
    panRiesgoOperatorio grid;
    modally([&] { grid.showModal(); },
            [&](forms::Form &window) {
                window.grab();
                double worst = 0;
                for (auto *label : window.findChildren<forms::Label *>())
                    if (label->objectName().startsWith("celdaR"))
                        worst = std::max(worst, elapsed([&] { click(*label); }));
                report("operative risk: click to result, worst of 57", worst, patienceForAClick);
                window.unload();
            });
    panEvalDeportiva sports;
    sports.setTag(patient);
    report("panEvalDeportiva, open to first paint", untilPainted(sports), patienceForTheSportsForm);
}

void pregnancy(const QString &patient, const Report &report)
{
    dao::Batch together(BaseDatos);
    dao::Recordset pregnancies = BaseDatos.openRecordset(u"Gestaciones"_s);
    pregnancies.addNew();
    pregnancies[u"idPaciente"] = patient.toLongLong();
    pregnancies[u"Gestacion"] = 99;
    pregnancies.update();
    dao::Recordset visits = BaseDatos.openRecordset(u"historicoGestaciones"_s);
    for (int i = 0; i < controls; ++i) {
        visits.addNew();
        visits[u"idPaciente"] = patient.toLongLong();
        visits[u"Gesta"] = 99;
        visits[u"Fecha"] = basic::dateAdd(u"d", -7 * (controls - i), basic::today());
        visits[u"IG"] = QString::number(i + 1);
        visits[u"AU"] = QString::number(i);
        visits[u"Presion"] = u"110/70"_s;
        visits.update();
    }
    together.commit();
    panGinecoGestas window;
    window.setTag(patient);
    report("panGinecoGestas with 40 controls, open to first paint", untilPainted(window),
           patienceForAGestation);
    BaseDatos.execute(u"Delete * from Gestaciones where Gestacion = 99 and idPaciente = "_s + patient);
    BaseDatos.execute(u"Delete * from historicoGestaciones where Gesta = 99 and idPaciente = "_s + patient);
}

void drawing(const QString &patient, const Report &report)
{
    BaseDatos.beginTrans();
    dao::Recordset table = BaseDatos.openRecordset(u"ConsultaGineco"_s);
    for (int i = 0; i < examinations; ++i) {
        table.addNew();
        table[u"idpaciente"] = i;
        table[u"Examen"] = mark;
        table.update();
    }
    BaseDatos.commitTrans();
    std::vector<gineco::Marca> drawn;
    for (int i = 0; i < marks; ++i)
        drawn.push_back({i % 24, QPointF(300 + i % 10 * 500, 300 + i / 10 * 400)});
    report("an examination with 100 marks saved among 100,000", elapsed([&] {
               dao::Batch together(BaseDatos);
               table.addNew();
               table[u"idpaciente"] = patient.toLongLong();
               table[u"Examen"] = mark;
               table.update();
               table.moveLast();
               gineco::guardarMarcas(table[u"idExamen"].integer(), drawn);
               together.commit();
           }),
           patienceToSave);
    panExaColpo form;
    report("drawn examination with 100 marks, open to first paint", elapsed([&] {
               form.mostrarMarcas(drawn);
               modally([&] { form.showModal(); },
                       [](forms::Form &window) {
                           window.grab();
                           window.unload();
                       });
           }),
           patienceForADrawing);
    BaseDatos.execute(
        u"Delete * from DetExamenGinecoGraf where idExamen in (Select idExamen from ConsultaGineco where Examen = '%1')"_s
            .arg(mark));
    BaseDatos.execute(u"Delete * from ConsultaGineco where Examen = '%1'"_s.arg(mark));
}

} // namespace

void specialties(const Report &report)
{
    const dao::Recordset patients = BaseDatos.openRecordset(u"Select top 1 Numero from Pacientes"_s);
    if (patients.eof()) {
        std::cout << "skipped: the specialties, no patients\n";
        return;
    }
    const QString patient = patients.value(0).text();
    risks(patient, report);
    pregnancy(patient, report);
    drawing(patient, report);
}

} // namespace bench
