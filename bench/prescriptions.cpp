#include "prescriptions.h"

#include "core/session/session.h"
#include "documents/prescriptions/pan_Recetario.h"
#include "documents/prescriptions/winReceta.h"

using namespace Qt::StringLiterals;

namespace bench
{

namespace
{

constexpr int many = 100000;
const QString doctor = u"Dr Cien Mil Recetas"_s;

void fill()
{
    dao::Batch batch(MODULE11::BaseDatos, dao::Batch::Long);
    dao::Recordset file = MODULE11::BaseDatos.openRecordset(u"Recetario"_s);
    for (int i = 0; i < many; ++i) {
        file.addNew();
        file[u"Paciente"] = u"Paciente %1"_s.arg(i * 7919 % many);
        file[u"fecha"] = basic::Date(QDate(2000, 1, 1).addDays(i * 31 % 9000));
        file[u"Receta"] = u"Ibuprofeno 4 %, 5 ml cada 8 horas por 5 días."_s;
        file[u"idPaciente"] = i;
        file[u"Dr"] = doctor;
        file.update();
    }
    batch.commit();
}

/// Until its first paint has reached a picture.
template <class Window>
double opening(Window &&window)
{
    QElapsedTimer timer;
    timer.start();
    double painted = 0;
    modally([&] { window.showModal(); },
            [&](forms::Form &form) {
                form.grab();
                painted = milliseconds(timer);
                form.answer({});
            });
    return painted;
}

} // namespace

void prescriptions(const Report &report)
{
    const QString before = std::exchange(MODULE11::DrActual, doctor);
    const QString table = std::exchange(MODULE11::TablaRecetario, u"POSRECETARIO"_s);
    fill();
    for (int i = 0; i < 3; ++i)
        report("the file of 100,000 prescriptions, open to first paint", opening(pan_Recetario()), 100);
    for (int i = 0; i < 3; ++i)
        report("the prescription sheet, open to first paint", opening(winReceta(1, {})), 100);
    MODULE11::BaseDatos.execute(u"Delete * from Recetario where Dr = '%1'"_s.arg(doctor));
    MODULE11::TablaRecetario = table;
    MODULE11::DrActual = before;
}

} // namespace bench
