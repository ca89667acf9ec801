#include "core/services/orden.h"
#include "delivered.h"
#include "documents/listings/selecciones.h"
#include "platform/reports/selection.h"

using namespace Qt::StringLiterals;

namespace
{

const QString injected = u"x' or 'a' = 'a"_s;

class SeleccionesTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, [Diagnostico 1], Dr, Mutual, "
             "idPrestacion, StatusOrden) VALUES (1, 'D''Angelo, Luz', cdate('01/03/2024'), 'Otitis', "
             "'Dra. O''Higgins', 'Mutual', 7, 'PENDIENTE')",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, [Diagnostico 5], Dr, Mutual) "
             "VALUES (2, 'Ñandú, Ana', cdate('31/03/2024'), 'Otitis', 'Dr. Paz', '')",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, [Diagnostico 3], Dr) "
             "VALUES (3, 'Fuera, Luis', cdate('01/04/2024'), 'Otitis', 'Dr. Paz')",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, [Diagnostico 1], Dr) "
             "VALUES (4, 'Sano, Juan', cdate('15/03/2024'), 'Sano', 'Dr. Paz')",
             "INSERT INTO Turnos (Fecha, Hora, Paciente, Dr, Mutual) VALUES (cdate('15/03/2024'), '08:00', "
             "'D''Angelo, Luz', 'Dra. O''Higgins', 'Mutual d''Este')",
             "INSERT INTO Turnos (Fecha, Hora, Paciente, Dr, Mutual) VALUES (cdate('15/03/2024'), '08:30', "
             "'<Sin Asignar>', 'Dr. Paz', '')",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], idProfesional) VALUES (1, 'Luz', 1)",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (2, 'Ana')"});
    }

    const seleccion::Periodo march{basic::Date(QDate(2024, 3, 1)), basic::Date(QDate(2024, 3, 31))};

    /// The rows of a table that a report's formula selects, by one of its columns.
    static QString selected(const QString &column, const QString &table, const QString &formula)
    {
        return rows(u"Select %1 from %2 where "_s.arg(column, table) + reports::toDialect(formula) +
                    u" order by 1"_s);
    }
    static QString visits(const QString &formula) { return selected(u"Paciente"_s, u"Consulta"_s, formula); }
    static QString places(const QString &formula) { return selected(u"Hora"_s, u"Turnos"_s, formula); }
    /// How many rows a list has.
    static qint64 count(const QString &sql) { return MODULE11::BaseDatos.openRecordset(sql).rowCount(); }
};

TEST_F(SeleccionesTest, theFormulasAreThoseOfTheReportFiles)
{
    EXPECT_EQ(seleccion::deConsultas(march),
              u"{consulta.fecha} >= date(2024,3,1) and {consulta.fecha} <= date(2024,3,31)"_s);
    EXPECT_EQ(seleccion::dePacientes({}), u"{pacientes.numero} <> 0"_s);
    EXPECT_EQ(seleccion::dePacientes(12), u"{pacientes.idProfesional} = 12"_s);
    seleccion::Filtros filtros;
    EXPECT_EQ(seleccion::deTurnos(march, filtros),
              u"{Turnos.Fecha} >= date(2024,3,1) and {Turnos.Fecha} <= date(2024,3,31) and  true  and  true "
              u" and  true "_s);
    filtros = {u"Dra. O'Higgins"_s, u"D'Angelo, Luz"_s, u"Mutual"_s, 7, u"PENDIENTE"_s};
    EXPECT_EQ(seleccion::deAtenciones(march, filtros),
              u"{Consulta.Fecha} >= date(2024,3,1) and {Consulta.Fecha} <= date(2024,3,31) and "
              u"{Consulta.Dr} = 'Dra. O''Higgins' and {consulta.idPrestacion} = 7 and "
              u"{consulta.statusorden} = 'PENDIENTE' and {Consulta.[Nombre del Paciente]} = 'D''Angelo, Luz' "
              u"and {Consulta.Mutual} = 'Mutual'"_s);
}

TEST_F(SeleccionesTest, aPeriodHoldsItsFirstAndItsLastDay)
{
    EXPECT_EQ(visits(seleccion::deConsultas(march)), u"1|2|4"_s);
    EXPECT_EQ(count(seleccion::listaDeConsultas(march)), 3);
}

TEST_F(SeleccionesTest, aDiagnosisIsFoundInEachPlaceOfThePeriodAlone)
{
    EXPECT_EQ(visits(seleccion::dePatologia(march, u"otitis"_s)), u"1|2"_s);
    EXPECT_EQ(count(seleccion::listaPorDiagnostico(march, u"Otitis"_s)), 3); // the third in April
    EXPECT_EQ(visits(seleccion::dePatologia(march, injected)), QString());
    EXPECT_EQ(count(seleccion::listaPorDiagnostico(march, injected)), 0);
}

TEST_F(SeleccionesTest, eachFilterNarrowsAndApostrophesAreLetters)
{
    using seleccion::Filtros;
    EXPECT_EQ(places(seleccion::deTurnos(march, {})), u"08:00|08:30"_s);
    EXPECT_EQ(places(seleccion::deTurnos(march, {.profesional = u"Dra. O'Higgins"_s})), u"08:00"_s);
    EXPECT_EQ(places(seleccion::deTurnos(march, {.paciente = u"D'Angelo, Luz"_s})), u"08:00"_s);
    EXPECT_EQ(places(seleccion::deTurnos(march, {.obraSocial = u"Mutual d'Este"_s})), u"08:00"_s);
    EXPECT_EQ(places(seleccion::deTurnos(march, {.paciente = injected})), QString());
    EXPECT_EQ(visits(seleccion::deAtenciones(march, {})), u"1|2|4"_s);
    EXPECT_EQ(visits(seleccion::deAtenciones(march, {.profesional = u"Dr. Paz"_s})), u"2|4"_s);
    for (const Filtros &filtros :
         {Filtros{.paciente = u"D'Angelo, Luz"_s}, Filtros{.obraSocial = u"Mutual"_s},
          Filtros{.idPrestacion = 7}, Filtros{.estadoDeOrden = u"PENDIENTE"_s}})
        EXPECT_EQ(visits(seleccion::deAtenciones(march, filtros)), u"1"_s);
}

TEST_F(SeleccionesTest, theRegisterIsAProfessionalsOrWhole)
{
    EXPECT_EQ(column(seleccion::listaDePacientes({})), QStringList({u"2"_s, u"1"_s}));
    EXPECT_EQ(column(seleccion::listaDePacientes(1)), QStringList({u"1"_s}));
}

TEST_F(SeleccionesTest, aListIsOrderedByAnyOfItsColumns)
{
    const QString lista = u"Select Paciente, [nombre del paciente] from Consulta where Paciente in (select "
                          u"Paciente from Consulta where Dr <> 'x order by y') order by Fecha desc"_s;
    const auto ordered = [](const QString &sql, int column, bool descending) {
        return rows(services::ordenadaPor(sql, column, descending)).remove(u'\'');
    };
    EXPECT_EQ(ordered(lista, 1, false), u"1,DAngelo, Luz|3,Fuera, Luis|2,Ñandú, Ana|4,Sano, Juan"_s);
    EXPECT_EQ(ordered(lista, 0, true).left(13), u"4,Sano, Juan|"_s);
    // alike in the column: in the list's own order
    EXPECT_EQ(ordered(u"Select Dr, Paciente from Consulta order by Fecha desc"_s, 0, false),
              u"Dr. Paz,3|Dr. Paz,2|Dr. Paz,4|Dra. OHiggins,1"_s);
    EXPECT_EQ(ordered(u"Select * from Pacientes"_s, 0, true).left(1), u"2"_s);
    EXPECT_EQ(ordered(u"Select Dr, count(*) from Consulta group by Dr"_s, 1, false),
              u"Dra. OHiggins,1|Dr. Paz,3"_s);
    EXPECT_EQ(ordered(u"Select Numero from Pacientes union Select Paciente from Consulta"_s, 0, true),
              u"4|3|2|1"_s);
    const QString first = u"Select TOP 1 Numero from Pacientes order by [Apellido y Nombres]"_s;
    EXPECT_EQ(services::ordenadaPor(first, 0, true), first);
}

} // namespace
