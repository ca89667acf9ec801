#include "delivered.h"

#include "practice/professionals/calendarioAnual.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{

class CalendarioTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
    }
    void atiende(qint64 profesional, QDate dia, const char16_t *desde = u"08:00")
    {
        dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"DisTurnos"_s);
        filas.addNew();
        filas[u"idProfesional"] = profesional;
        filas[u"Fecha"] = dia;
        filas[u"desde1"] = desde;
        filas.update();
    }
};

QStringList negritas(const practice::CalendarioAnual &calendario)
{
    QStringList dias;
    for (const auto *mes : calendario.findChildren<forms::MonthView *>())
        for (QDate dia = mes->minimumDate(); dia <= mes->maximumDate(); dia = dia.addDays(1))
            if (mes->dateTextFormat(dia).fontWeight() == QFont::Bold)
                dias += dia.toString(Qt::ISODate);
    dias.sort();
    return dias;
}

TEST_F(CalendarioTest, WorkingDaysOfTheYearInViewAreBold)
{
    for (const QDate dia :
         {QDate(2024, 1, 1), QDate(2024, 2, 29), QDate(2024, 12, 31), QDate(2023, 12, 31), QDate(2025, 1, 1)})
        atiende(1, dia);
    atiende(2, QDate(2024, 5, 5));
    atiende(1, QDate(2024, 2, 29), u"15:00"); // of two rows of a day the first holds
    EXPECT_EQ(practice::diasDeTrabajo(1, 2024).at(QDate(2024, 2, 29)).desde1, u"08:00"_s);

    practice::CalendarioAnual calendario;
    calendario.setProfesional(1);
    EXPECT_EQ(negritas(calendario), (QStringList{u"2024-01-01"_s, u"2024-02-29"_s, u"2024-12-31"_s}));
    auto *ano = calendario.findChild<forms::TextBox *>(u"txtAno"_s);
    ano->setText(u"2025"_s);
    EXPECT_EQ(negritas(calendario), QStringList{u"2025-01-01"_s});
    ano->setText(u"20"_s); // half typed: the year in view stays
    EXPECT_EQ(negritas(calendario), QStringList{u"2025-01-01"_s});
    calendario.setProfesional(2);
    ano->setText(u"2024"_s);
    EXPECT_EQ(negritas(calendario), QStringList{u"2024-05-05"_s});
}

TEST_F(CalendarioTest, TheFirstMonthWrittenComesIntoSight)
{
    practice::CalendarioAnual calendario;
    calendario.resize(860, 300);
    calendario.show();
    QCoreApplication::processEvents();
    calendario.setProfesional(1);
    auto *setiembre = calendario.findChild<forms::MonthView *>(u"mv1(8)"_s);
    const auto aLaVista = [&] {
        return calendario.rect().contains(QRect(setiembre->mapTo(&calendario, QPoint()), setiembre->size()));
    };
    EXPECT_FALSE(aLaVista());
    atiende(1, QDate(2024, 9, 2));
    calendario.irA(QDate(2024, 9, 1));
    EXPECT_TRUE(aLaVista());
    EXPECT_EQ(negritas(calendario), QStringList{u"2024-09-02"_s});
    calendario.irA(QDate(2025, 2, 1));
    EXPECT_EQ(calendario.findChild<forms::TextBox *>(u"txtAno"_s)->text(), u"2025"_s);
    EXPECT_FALSE(aLaVista());
}

} // namespace
