#include "practice.h"

#include "clinical/visits/examen.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "paediatrics/vaccines/atrasos.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

const QDate today(2026, 3, 4);
/// Those of the paediatricians; the eye's have a record of their own.
const QString paediatric = u"(EspecialidadPLUS is null or EspecialidadPLUS <> 'Oftalmología')"_s;
constexpr int patients = 60, visits = 600, examinations = 200, chronic = 80;

/// A small practice, filled once.
class SyntheticPractice : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        const QString path = folder_->filePath(u"BASE.MDB"_s);
        ASSERT_TRUE(QFile::copy(QStringLiteral(UPGRADED_BASE), path));
        MODULE11::valoresIniciales();
        BaseDatos.open(path, false, false, MODULE11::conexionDeLaBase());
        practica::Size size;
        size.patients = patients;
        size.visits = visits;
        size.examinations = examinations;
        size.chronic = chronic;
        size.today = today;
        practica::fill(size);
    }
    static void TearDownTestSuite()
    {
        BaseDatos.close();
        folder_.reset();
    }

    static dao::Recordset query(const QString &sql) { return BaseDatos.openRecordset(sql); }
    static qint64 count(const QString &fromAndWhere)
    {
        return query(u"Select count(*) from "_s + fromAndWhere)[0].integer();
    }

    /// Name and doses by key.
    struct Entry {
        QString name;
        std::array<QString, 3> doses;
    };
    static std::map<qint64, Entry> catalogue(const QString &table, const QString &key, bool doses)
    {
        std::map<qint64, Entry> entries;
        for (dao::Recordset rows = query(u"Select * from "_s + table); !rows.eof(); rows.moveNext()) {
            Entry &entry = entries[rows[key].integer()];
            entry.name = rows[u"Descripcion"].text();
            if (doses)
                entry.doses = {rows[u"Dosis"].text(), rows[u"Intervalo"].text(), rows[u"Lapso"].text()};
        }
        return entries;
    }

private:
    static inline std::unique_ptr<QTemporaryDir> folder_;
};

TEST_F(SyntheticPractice, BillsItsLastMonthsAtInventedPrices)
{
    EXPECT_EQ(count(u"Prestaciones where Descripcion NOT LIKE '*(precio inventado)'"_s), 0);
    EXPECT_GT(count(u"Facturacion where Cobrada = TRUE"_s), 0);
    EXPECT_GT(count(u"Facturacion where Cobrada = FALSE"_s), 0);
    EXPECT_EQ(count(u"DetalleFacturacion"_s), count(u"Consulta where Facturada = TRUE"_s));
    EXPECT_EQ(query(u"Select sum(Total) from Facturacion"_s)[0].value(),
              query(u"Select sum(Importe) from DetalleFacturacion"_s)[0].value());
    EXPECT_EQ(query(u"Select sum(Entrada) from Caja where Cuenta = 'Facturacion'"_s)[0].value(),
              query(u"Select sum(Total) from Facturacion where Cobrada = TRUE"_s)[0].value());
    EXPECT_EQ(
        count(u"Consulta where TmpCheck = 'o' or (Facturada = TRUE and Fecha >= cdate('01/03/2026'))"_s), 0);
}

TEST_F(SyntheticPractice, HasTheVisitsAndExaminationsAskedFor)
{
    const qint64 ofTheEyes = count(u"ConsultaOftalmo"_s);
    EXPECT_GT(ofTheEyes, 0);
    EXPECT_EQ(count(u"Consulta where EspecialidadPLUS = 'Oftalmología'"_s), ofTheEyes);
    EXPECT_EQ(count(u"Consulta"_s), visits + chronic + ofTheEyes);
    EXPECT_EQ(count(u"Consulta where paciente = 1"_s), chronic);

    std::map<qint64, QStringList> titles;
    for (dao::Recordset rows = query(u"Select * from ExFisico order by idExFisico"_s); !rows.eof();
         rows.moveNext())
        titles[rows[u"idConsulta"].integer()] += rows[u"Titulo"].text();
    EXPECT_EQ(titles.size(), std::size_t{examinations + chronic});
    std::map<int, QString> fields;
    for (const examen::Item &item : examen::items())
        fields[item.indice] = QString::fromUtf8(item.titulo);
    QStringList inOrderOfTheFields;
    for (const auto &[index, title] : fields)
        inOrderOfTheFields += title;

    QDate earliestExamined = today, latestOther;
    for (dao::Recordset rows = query(u"Select * from Consulta where "_s + paediatric); !rows.eof();
         rows.moveNext()) {
        const auto examined = titles.find(rows[u"idConsulta"].integer());
        if (examined != titles.end()) {
            EXPECT_EQ(examined->second, inOrderOfTheFields);
        }
        if (rows[u"paciente"].integer() == 1) {
            EXPECT_NE(examined, titles.end());
        } else if (examined != titles.end())
            earliestExamined = std::min(earliestExamined, rows[u"Fecha"].date().date());
        else
            latestOther = std::max(latestOther, rows[u"Fecha"].date().date());
    }
    EXPECT_GE(earliestExamined, latestOther);
    EXPECT_EQ(count(u"ExFisico e inner join Consulta c on e.idConsulta = c.idConsulta "
                    "where e.Fecha <> c.Fecha or e.Dr <> c.Dr or e.idPaciente <> c.paciente"_s),
              0);
}

TEST_F(SyntheticPractice, SlotsResolveInTheCataloguesAndCopyTheirDoses)
{
    const struct {
        QString name, id;
        std::map<qint64, Entry> entries;
    } groups[] = {
        {u"Sintoma "_s, u"idSintoma"_s, catalogue(u"Sintomas"_s, u"idSintoma"_s, false)},
        {u"Diagnostico "_s, u"idDiagnostico"_s, catalogue(u"DIAGPERSONALES"_s, u"idDiagPersonales"_s, false)},
        {u"Tratamiento "_s, u"idTratamiento"_s, catalogue(u"Tratamientos"_s, u"idTratamiento"_s, true)},
    };
    int treated = 0, dosed = 0;
    for (dao::Recordset rows = query(u"Select * from Consulta where "_s + paediatric); !rows.eof();
         rows.moveNext())
        for (const auto &group : groups)
            for (int slot = 1; slot <= 5; ++slot) {
                const QString digit = QString::number(slot);
                const QString name = rows[group.name + digit].text();
                ASSERT_EQ(rows[group.id + digit].isNull(), name.isEmpty());
                if (name.isEmpty())
                    continue;
                const Entry &entry = group.entries.at(rows[group.id + digit].integer());
                EXPECT_EQ(entry.name, name);
                if (group.id != u"idTratamiento")
                    continue;
                ++treated;
                dosed += entry.doses[0].isEmpty() ? 0 : 1;
                const std::array copied = {rows[u"Dosis"_s + digit].text(),
                                           rows[u"Intervalo"_s + digit].text(),
                                           rows[u"Lapso"_s + digit].text()};
                EXPECT_EQ(copied, entry.doses);
                EXPECT_FALSE(copied[2].isEmpty()) << name.toStdString();
            }
    EXPECT_GT(treated, visits / 3);
    EXPECT_GT(dosed, visits / 10);
}

TEST_F(SyntheticPractice, VisitsLieInTheirPatientsLives)
{
    std::map<QString, QString> prices;
    for (dao::Recordset rows = query(u"Select * from [Obra Social]"_s); !rows.eof(); rows.moveNext())
        prices[rows[u"Descripcion"].text()] = rows[u"Precio Consulta"].text();
    int discharged = 0;
    for (dao::Recordset patient = query(u"Select * from Pacientes"_s); !patient.eof(); patient.moveNext()) {
        const QDate birth = patient[u"Fecha de Nacimiento"].date().date();
        const bool left = !patient[u"FechaBaja"].isNull();
        const QDate end = left ? std::min(today, patient[u"FechaBaja"].date().date()) : today;
        discharged += left ? 1 : 0;
        std::set<QDate> days;
        dao::Recordset rows = query(u"Select * from Consulta where paciente = %1 and %2 order by Fecha"_s.arg(
            patient[u"Numero"].text(), paediatric));
        for (; !rows.eof(); rows.moveNext()) {
            const QDate day = rows[u"Fecha"].date().date();
            EXPECT_GT(day, birth);
            EXPECT_LE(day, end);
            EXPECT_EQ(rows[u"Edad"].integer(), birth.daysTo(day));
            EXPECT_EQ(rows[u"Tipo"].text(), days.empty() ? u"1ra."_s : u"Ulterior"_s);
            EXPECT_TRUE(days.insert(day).second) << "two visits of a day show each other's findings";
            EXPECT_EQ(rows[u"Monto"].text(), prices[patient[u"Obra Social"].text()]);
            EXPECT_GT(rows[u"Peso"].number(), 1500);
            EXPECT_GT(rows[u"Talla"].number(), 40);
        }
        const basic::Value last = patient[u"Ultima fecha visita"];
        ASSERT_EQ(last.isNull(), days.empty());
        if (!days.empty()) {
            EXPECT_EQ(last.date().date(), *days.rbegin());
        }
    }
    EXPECT_GT(discharged, 0) << "the practice is too small to show what follows a discharge";
}

TEST_F(SyntheticPractice, IsWhatAPaediatricianWouldWrite)
{
    std::set<qint64> antibiotics;
    for (dao::Recordset rows =
             query(u"Select idTratamiento from Tratamientos where Clasificacion = 'Antibióticos'"_s);
         !rows.eof(); rows.moveNext())
        antibiotics.insert(rows[0].integer());
    int febrile = 0, onAntibiotics = 0;
    for (dao::Recordset rows = query(u"Select * from Consulta where "_s + paediatric); !rows.eof();
         rows.moveNext()) {
        bool fever = false, antibiotic = false;
        for (int slot = 1; slot <= 5; ++slot) {
            const QString digit = QString::number(slot);
            fever = fever || rows[u"Sintoma "_s + digit].text() == u"Fiebre";
            antibiotic = antibiotic || antibiotics.contains(rows[u"idTratamiento"_s + digit].integer());
            if (rows[u"Tratamiento "_s + digit].text() == u"Ibuprofeno") {
                EXPECT_GE(rows[u"Edad"].integer(), 182);
            }
        }
        const double temperature = basic::Value(rows[u"Temperatura"]).number();
        EXPECT_EQ(temperature >= 38, fever);
        EXPECT_TRUE(temperature >= 36 && temperature < 40);
        febrile += fever ? 1 : 0;
        onAntibiotics += antibiotic ? 1 : 0;
        if (rows[u"Diagnostico 1"].text() == u"Niño sano") {
            EXPECT_FALSE(antibiotic || fever);
        }
    }
    EXPECT_GT(febrile, 0);
    EXPECT_GT(onAntibiotics, 0);
    const QString pressure = u"ExFisico e inner join Consulta c on e.idConsulta = c.idConsulta "
                             "where e.Titulo LIKE '*TA*1' and e.Valor <> '' and c.Edad "_s;
    EXPECT_EQ(count(pressure + u"< 1095"_s), 0);
    EXPECT_GT(count(pressure + u">= 1095"_s), 0);
}

TEST_F(SyntheticPractice, KnowsBirthsPressuresAndSight)
{
    const qint64 births = count(u"Perinatal"_s);
    EXPECT_GT(births, patients / 2);
    EXPECT_LT(births, patients);
    EXPECT_EQ(
        count(
            u"Medidas m inner join Pacientes p on m.Paciente = p.Numero where m.fecha = p.[Fecha de Nacimiento]"_s),
        births);
    qint64 light = 0;
    for (dao::Recordset rows = query(u"Select [Peso al nacer] from Perinatal"_s); !rows.eof();
         rows.moveNext()) {
        const double weight = rows[0].number();
        EXPECT_TRUE(weight > 900 && weight < 5200) << weight;
        light += weight < 2500 ? 1 : 0;
    }
    EXPECT_LT(light, births / 4);
    EXPECT_GT(count(u"TomaPresion where maxima > minima"_s), 0);
    EXPECT_EQ(count(u"TomaPresion where maxima <= minima"_s), 0);
    EXPECT_GT(count(u"Visual"_s), 0);
}

TEST_F(SyntheticPractice, RefusesMoreVisitsThanAChildhoodHasDays)
{
    practica::Size size;
    size.patients = 1;
    size.chronic = 9000;
    size.today = today;
    EXPECT_THROW(practica::fill(size), std::runtime_error);
    EXPECT_EQ(count(u"Pacientes"_s), patients) << "refused before anything was written";
}

} // namespace

TEST_F(SyntheticPractice, HasCompleteLateAndEmptyVaccinePlans)
{
    const auto late = vacunas::Atrasos::buscar({}, basic::Date(today));
    std::set<qint64> lateChildren;
    for (qint64 line = 0; line < late->cuantos(); ++line)
        lateChildren.insert(late->paciente(line));
    for (const qint64 child : lateChildren)
        EXPECT_LT(child % 10, 4) << "every dose of its age is noted";
    EXPECT_EQ(count(u"Vacunas where Paciente = 10"_s), 0);
    EXPECT_GT(count(u"Vacunas where Paciente mod 10 in (1, 2, 3) and observaciones = 'INDICADA'"_s), 0);
    EXPECT_EQ(count(u"Vacunas v inner join Pacientes p on v.Paciente = p.Numero "
                    "where v.fecha < p.[Fecha de Nacimiento] or v.fecha > cdate('04/03/2026')"_s),
              0);
    EXPECT_GT(lateChildren.size(), 5u);
}

TEST_F(SyntheticPractice, HasACashbookAndAStockThatAgreesWithItsMovements)
{
    EXPECT_GT(count(u"Caja where Entrada > 0 and Salida = 0"_s), 100);
    EXPECT_GT(count(u"Caja where Salida > 0 and Entrada = 0"_s), 50);
    EXPECT_EQ(count(u"Caja where Cuenta not in (Select Descripcion from Cuentas)"_s), 0);
    EXPECT_GT(count(u"Articulos where StockActual < StockMinimo"_s), 0);
    EXPECT_EQ(count(u"Articulos where StockActual <> (Select Sum(Cantidad) from MovStock where "
                    u"MovStock.idArticulo = Articulos.idArticulo)"_s),
              0);
}

TEST_F(SyntheticPractice, HasTemporaryAndPermanentTeethTreatedAndBudgeted)
{
    EXPECT_EQ(count(u"Odontograma"_s), 4);
    std::set<qint64> ages;
    for (
        dao::Recordset rows = query(
            u"Select distinct p.[Fecha de Nacimiento] as n from Odontograma o inner join Pacientes p on o.IdPaciente = p.Numero"_s);
        !rows.eof(); rows.moveNext())
        ages.insert(rows[u"n"].date().date().daysTo(today) / 365);
    EXPECT_EQ(ages.size(), 2u) << "a child and an adolescent";
    EXPECT_EQ(count(u"Odontograma where string1 not like '*|*'"_s), 0);
    EXPECT_EQ(
        query(u"Select codpresupuesto from ConsultaPresupuesto where subtotal > 0 group by codpresupuesto"_s)
            .rowCount(),
        2);
}

TEST_F(SyntheticPractice, FollowsAChildForItsHeart)
{
    const QString records = u"ConsultaCardiologia c inner join AntecedentesCardiologicos a "
                            "on c.idpaciente = a.idPaciente"_s;
    EXPECT_EQ(count(records), 3);
    EXPECT_EQ(
        count(records + u" inner join Consulta v on (v.paciente = c.idpaciente and v.Fecha = c.Fecha)"_s), 3)
        << "at visits of its own";
    EXPECT_EQ(count(records +
                    u" inner join HC_Deportiva d on (d.idPaciente = c.idpaciente and d.Fecha = c.Fecha)"_s),
              1);
}

TEST_F(SyntheticPractice, AccompaniesAPregnancyOfAnAdolescent)
{
    EXPECT_EQ(
        count(u"Gestaciones g inner join Pacientes p on g.idPaciente = p.Numero where p.Sexo = 'Mujer'"_s),
        1);
    EXPECT_EQ(count(u"HistoricoGestaciones h inner join Gestaciones g on (h.idPaciente = g.idPaciente and "
                    "h.Gesta = g.Gestacion) where h.Fecha > g.Dum"_s),
              5);
    EXPECT_EQ(count(u"DetExamenGinecoGraf d inner join ConsultaGineco c on d.idExamen = c.idExamen"_s), 3);
}
