#include "answers.h"
#include "core/reports/panCrystal.h"
#include "core/services/panListados.h"
#include "delivered.h"
#include "documents/listings/panInfTurnos.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace
{

template <class Control>
Control &control(forms::Form &form, const QString &name)
{
    return *form.findChild<Control *>(name);
}

class ListadosTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        qputenv("SANIRELL_CARPETA", ASSETS); // where the report files are
        forms::Data::setDefaultDatabase(&MODULE11::BaseDatos);
        run({"INSERT INTO Prestaciones (Descripcion) VALUES ('Control d''alta')",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, Monto, Peso, idPrestacion, "
             "StatusOrden) VALUES (1, 'Zeta', cdate('15/03/2024'), 100.1, 9000, 1, 'PENDIENTE')",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, Monto) VALUES (2, 'Alfa', "
             "cdate('14/03/2024'), 1000.2)"});
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
    }
    void TearDown() override
    {
        qunsetenv("SANIRELL_CARPETA");
        DeliveredBase::TearDown();
    }
};

TEST_F(ListadosTest, aListIsOrderedByItsHeadingsAndTotalsItsAmounts)
{
    panListados list(
        u"Select Paciente, [nombre del paciente], Monto, Peso, Fecha from Consulta order by Fecha"_s,
        u"Consultas"_s);
    EXPECT_EQ(control<forms::Label>(list, u"Label2"_s).caption().toStdString(),
              "Filas : 2   ·   Monto : 1.100,30   ·   Peso : 9.000,00");
    auto &grid = control<forms::DBGrid>(list, u"DBGrid1"_s);
    const auto first = [&] { return grid.model()->index(0, 1).data().toString(); };
    EXPECT_EQ(first(), u"Alfa"_s);
    emit grid.horizontalHeader()->sectionClicked(2);
    EXPECT_EQ(first(), u"Zeta"_s);
    emit grid.horizontalHeader()->sectionClicked(2);
    EXPECT_EQ(first(), u"Alfa"_s);
    emit grid.horizontalHeader()->sectionClicked(1);
    EXPECT_EQ(first(), u"Alfa"_s) << "another column begins upwards";
}

TEST_F(ListadosTest, ofVisitsTheReportIsNarrowedByServiceAndState)
{
    panInfTurnos request;
    request.setTag(u"CONS"_s);
    onceOpen([](forms::Form &form) {
        EXPECT_EQ(form.windowTitle(), u"Informe de consultorio"_s);
        EXPECT_TRUE(control<forms::Frame>(form, u"picCons"_s).isVisible());
        control<forms::ComboBox>(form, u"cbPrestaciones"_s).setValue(u"Control d'alta"_s);
        control<forms::ComboBox>(form, u"cbStatus"_s).setValue(u"PENDIENTE"_s);
        control<forms::DTPicker>(form, u"dt1"_s).setDate(QDate(2024, 3, 1));
        onceOpen([](forms::Form &preview) {
            EXPECT_EQ(control<forms::Label>(preview, u"lblPagina"_s).caption(), u"página 1 de 1"_s);
            control<forms::TextBox>(preview, u"Text1"_s).setText(u"Total: 1"_s);
            control<forms::CommandButton>(preview, u"Command6"_s).click(); // a box, were it not found
            preview.unload();
        });
        control<forms::CommandButton>(form, u"Command1"_s).click();
        form.unload();
    });
    request.showModal();
}

} // namespace
