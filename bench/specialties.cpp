#include "specialties.h"

#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"
#include "specialties/cardiology/panCardioPrin.h"
#include "specialties/cardiology/panGraMed.h"
#include "specialties/gynaecology/panExaGineco.h"
#include "specialties/gynaecology/panGinecoGestas.h"
#include "specialties/risk/panEvalDeportiva.h"
#include "specialties/risk/panRiesgoOperatorio.h"
#include "specialties/risk/panTestCardio.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QTemporaryDir>

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
constexpr double patienceForAHeartRecord = 50, patienceForWeights = 200;
constexpr int yearsOfWeights = 20;
constexpr QSize tenMegapixels(3872, 2592);
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

/// What a person sees after the step is the tracing, so it is painted too.
void heart(const QString &patient, const Report &report)
{
    const QTemporaryDir folder;
    QImage tracing(tenMegapixels, QImage::Format_RGB32);
    tracing.fill(Qt::white);
    QPainter painter(&tracing);
    for (int x = 0; x < tracing.width(); x += 8)
        painter.drawLine(x, 0, x + 40, tracing.height());
    painter.end();
    dao::Batch together(BaseDatos);
    dao::Recordset records = BaseDatos.openRecordset(u"ConsultaCardiologia"_s);
    for (int i = 0; i < 2; ++i) {
        const QString file = folder.filePath(u"%1.jpg"_s.arg(i));
        tracing.save(file);
        records.addNew();
        records[u"idPaciente"] = patient.toLongLong();
        records[u"Fecha"] = basic::dateAdd(u"d", -i, basic::today());
        records[u"Electro - Imagen"] = file;
        records[u"Otros Torax"] = mark;
        records.update();
    }
    together.commit();
    panCardioPrin window;
    window.setTag(patient);
    modally([&] { window.showModal(); },
            [&](forms::Form &form) {
                auto &dates = in<forms::DBGrid>(form, "DBGrid1");
                const int last = dates.model()->rowCount() - 1; // the patient may have older ones
                dates.setCurrentRow(last - 1);
                form.grab();
                report("step to another heart record with a 10-megapixel tracing", elapsed([&] {
                           dates.setCurrentRow(last);
                           form.grab();
                       }),
                       patienceForAHeartRecord);
                form.unload();
            });
    BaseDatos.execute(u"Delete * from ConsultaCardiologia where [Otros Torax] = '%1'"_s.arg(mark));
}

void weights(const QString &patient, const Report &report)
{
    dao::Batch together(BaseDatos);
    dao::Recordset measures = BaseDatos.openRecordset(u"Medidas"_s);
    for (int day = 0; day < yearsOfWeights * 365; ++day) {
        measures.addNew();
        measures[u"Paciente"] = patient.toLongLong();
        measures[u"fecha"] = basic::dateAdd(u"d", -day, basic::today());
        measures[u"Peso"] = 70000 + day % 500;
        measures[u"Lugar de Consulta"] = mark;
        measures.update();
    }
    together.commit();
    panGraMed window;
    window.setTag(patient);
    report("panGraMed over 20 years weighed daily, open to first paint", untilPainted(window),
           patienceForWeights);
    BaseDatos.execute(u"Delete * from Medidas where [Lugar de Consulta] = '%1'"_s.arg(mark));
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
    heart(patient, report);
    weights(patient, report);
    risks(patient, report);
    pregnancy(patient, report);
    drawing(patient, report);
}

} // namespace bench
