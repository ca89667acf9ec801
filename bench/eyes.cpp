#include "eyes.h"

#include "core/session/session.h"
#include "specialties/eye/visita.h"
#include "specialties/eye/visor.h"
#include "specialties/eye/winModConsulta.h"

#include <QTemporaryDir>

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int visits = 60, stampsOfDrawing = 12;
constexpr double patienceForForm = 150, patienceForViewer = 250; // milliseconds

oftalmo::Dibujo drawing()
{
    oftalmo::Dibujo drawn;
    const auto palette = oftalmo::plano(oftalmo::Clase::Fondo).paleta;
    for (int i = 0; i < stampsOfDrawing; ++i)
        drawn.sellos.push_back(
            {i, QPointF(900 * i, 400 * i), palette[static_cast<std::size_t>(i)].codigo.toString()});
    return drawn;
}

/// Sixty visits of a day each, with their drawings in a folder of their own.
void addVisits(qint64 patient, const QString &folder)
{
    dao::Batch together(BaseDatos);
    dao::Recordset rows = BaseDatos.openRecordset(u"ConsultaOftalmo"_s);
    for (int i = 0; i < visits; ++i) {
        const QString base = u"%1/%2"_s.arg(folder).arg(i);
        oftalmo::guardarDibujo(base, drawing());
        rows.addNew();
        rows[u"paciente"] = patient;
        rows[u"Fecha"] = QDate(2010, 1, 1).addDays(90 * i);
        rows[u"tensgoloi"] = base;
        rows.update();
    }
    together.commit();
}

} // namespace

void eyes(const Report &report)
{
    const dao::Recordset patients = BaseDatos.openRecordset(
        u"Select top 1 Numero from Pacientes where Numero not in (Select paciente from ConsultaOftalmo)"_s);
    QTemporaryDir folder;
    if (patients.eof() || !folder.isValid()) {
        std::cout << "skipped: eyes, no patient without eye visits\n";
        return;
    }
    const qint64 patient = patients.value(0).integer();
    addVisits(patient, folder.path());
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer opening;
        opening.start();
        winModConsulta form;
        form.mostrar(u"NUEVO"_s, u"Nueva Consulta"_s, oftalmo::visitaNueva(patient));
        const double built = milliseconds(opening);
        report("winModConsulta, open to first paint", built + untilPainted(form), patienceForForm);
        opening.start();
        panGraFondoX viewer;
        viewer.setTag(QString::number(patient));
        const double made = milliseconds(opening);
        report("panGraFondoX with 60 drawings, open to first paint", made + untilPainted(viewer),
               patienceForViewer);
    }
    BaseDatos.execute(u"Delete * from ConsultaOftalmo where paciente = %1"_s.arg(patient));
}

} // namespace bench
