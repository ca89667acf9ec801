#include "delivered.h"
#include "paediatrics/vaccines/atrasos.h"
#include "paediatrics/vaccines/calendarios.h"
#include "paediatrics/vaccines/cartas.h"
#include "paediatrics/vaccines/hojaDeVacunas.h"
#include "paediatrics/vaccines/planilla.h"

#include <set>

using namespace Qt::StringLiterals;
using vacunas::Estado;

namespace
{

basic::Date dia(const char *iso)
{
    return basic::Date(QDate::fromString(QString::fromLatin1(iso), Qt::ISODate));
}

vacunas::DosisDelPlan dosis(const char *descripcion, const char *edad, const char *vacuna)
{
    return {QString::fromUtf8(descripcion), {}, QString::fromUtf8(edad), QString::fromUtf8(vacuna), 0};
}

class VacunasTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        basic::setClock(QDateTime(hoy.date(), QTime(10, 30)));
    }

    static void nino(int numero, const char *nacimiento)
    {
        MODULE11::BaseDatos.execute(
            u"INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Fecha de Nacimiento]) VALUES (%1, 'Niño %1', cdate('%2'))"_s
                .arg(numero)
                .arg(QLatin1StringView(nacimiento)));
    }
    static void nota(int paciente, const char *fecha, const char *vacuna, const char *edad,
                     const char *observaciones = "-")
    {
        MODULE11::BaseDatos.execute(
            u"INSERT INTO Vacunas (Paciente, fecha, Vacuna, Dosis, observaciones) VALUES (%1, cdate('%2'), '%3', '%4', '%5')"_s
                .arg(QString::number(paciente), QString::fromUtf8(fecha), QString::fromUtf8(vacuna),
                     QString::fromUtf8(edad), QString::fromUtf8(observaciones)));
    }
    /// The lines of one vaccine, by child: "6: 4 MESES 35".
    QStringList atrasados(const char *descripcion)
    {
        const auto hallados = vacunas::Atrasos::buscar({QString::fromUtf8(descripcion)}, hoy);
        QStringList lineas;
        for (qint64 i = 0; i < hallados->cuantos(); ++i)
            lineas += u"%1: %2"_s.arg(hallados->paciente(i))
                          .arg(hallados->valor(i, vacunas::Atrasos::DeDosis).text());
        return lineas;
    }

    const basic::Date hoy = dia("2024-03-15");
};

} // namespace

TEST(PlanDeVacunas, theBandStandsByMonthsOfThirtyDays)
{
    const std::pair<int, const char16_t *> lineas[] = {
        {-1, u"1 MES"},     {0, u"1 MES"},           {1, u"1 MES"},
        {2, u"2 MESES"},    {5, u"5 MESES"},         {6, u"6 MESES"},
        {14, u"6 MESES"},   {15, u"12 MESES"},       {17, u"12 MESES"},
        {18, u"18 MESES"},  {47, u"18 MESES"},       {48, u"2 AÑOS"},
        {71, u"2 AÑOS"},    {72, u"INGRESO ESCOL."}, {191, u"INGRESO ESCOL."},
        {192, u"16 AÑOS"},  {239, u"16 AÑOS"},       {240, u"C/4 AÑOS"},
        {900, u"C/4 AÑOS"},
    };
    for (const auto &[meses, clave] : lineas)
        EXPECT_EQ(vacunas::filasDeEdad()[static_cast<std::size_t>(vacunas::filaDeLaBanda(meses))].clave,
                  QStringView(clave))
            << meses;

    const auto edad = [](int dias) {
        const basic::Date nacimiento = dia("2020-01-01");
        return vacunas::edadDelPlan(nacimiento, basic::Date(nacimiento.date().addDays(dias)));
    };
    EXPECT_EQ(edad(59).meses, 1);
    EXPECT_EQ(edad(60).meses, 2);
    EXPECT_EQ(edad(30 * 25).anios, 2);
    EXPECT_EQ(edad(30 * 25).mesesDelAnio, 1);
    EXPECT_EQ(edad(365).mesesDelAnio, 0) << "a year is twelve months of thirty days";
    EXPECT_EQ(edad(-1).meses, -1);
}

TEST(PlanDeVacunas, theMonthsKeptWithADoseAreThoseOfItsRow)
{
    for (const vacunas::FilaDeEdad &fila : vacunas::filasDeEdad()) {
        const QString clave = fila.clave.toString();
        const bool seEditaDistinto = clave == u"3 MESES" || clave == u"5 MESES";
        EXPECT_EQ(vacunas::mesesAlAgregar(clave), fila.meses) << qPrintable(clave);
        EXPECT_EQ(vacunas::mesesAlEditar(clave), seEditaDistinto ? 192 : fila.meses) << qPrintable(clave);
        EXPECT_EQ(vacunas::filaDe(clave.toLower()), vacunas::filaDe(clave)) << "ñ included";
    }
    EXPECT_EQ(vacunas::mesesAlAgregar(u"7 MESES"_s), 192);
    EXPECT_FALSE(vacunas::filaDe(u"7 MESES"_s));
}

TEST(PlanDeVacunas, dosesOfOneDescriptionShareAColumn)
{
    std::vector<vacunas::DosisDelPlan> plan = {
        dosis("Triple", "2 MESES", "DTP"), dosis("BCG", "1 MES", "BCG"), dosis("Triple", "16 AÑOS", "DTPA"),
        dosis("Triple", "2 MESES", "DTPX"), dosis("BCG", "7 MESES", "BCG")};
    const vacunas::Planilla hoja = vacunas::planilla(plan);
    ASSERT_EQ(hoja.columnas.size(), 2u);
    EXPECT_EQ(hoja.columnas[0].descripcion, u"Triple"_s);
    ASSERT_EQ(hoja.marcas.size(), 4u);
    EXPECT_EQ(hoja.marcas[2].dosis.vacuna, u"DTPA"_s);
    EXPECT_EQ(hoja.marcas[2].columna, 0);
    EXPECT_EQ(hoja.marcas[2].fila, 10);
    EXPECT_EQ(hoja.marcas[3].lugar, 1) << "beside the other one of its row";
    EXPECT_EQ(hoja.sinLugar, 1);

    for (int i = 0; i < 13; ++i)
        plan.push_back(dosis(qPrintable(u"V%1"_s.arg(i)), "1 MES", "V"));
    const vacunas::Planilla llena = vacunas::planilla(plan);
    EXPECT_EQ(llena.columnas.size(), vacunas::Planilla::columnasQueCaben);
    EXPECT_EQ(llena.sinLugar, 4);
}

TEST_F(VacunasTest, aMarkerTellsWhatIsNoted)
{
    nota(5, "01/02/2023", "bcg", "1 mes");
    nota(5, "01/02/2023", "HB", "1 MES", "INDICADA");
    nota(5, "01/02/2023", "QUINTUPLE", "2 MESES", "indicada");
    nota(5, "01/02/2023", "IPV", "2 MESES", "INDICADA");
    nota(5, "01/03/2023", "IPV", "2 MESES", "-");
    nota(6, "01/02/2023", "VCN", "2 MESES");
    vacunas::Planilla hoja = vacunas::planilla(vacunas::plan());
    hoja.ponerEstados(5, vacunas::EdadDelPlan{14, 1, 2});
    const auto estado = [&](const char *vacuna, const char16_t *edad) {
        for (const vacunas::Marca &marca : hoja.marcas)
            if (marca.dosis.vacuna == QLatin1StringView(vacuna) && marca.dosis.dosis == QStringView(edad))
                return marca.estado;
        ADD_FAILURE() << vacuna;
        return Estado::SinEdad;
    };
    EXPECT_EQ(estado("BCG", u"1 MES"), Estado::Colocada) << "compared whatever the case";
    EXPECT_EQ(estado("HB", u"1 MES"), Estado::Indicada);
    EXPECT_EQ(estado("QUINTUPLE", u"2 MESES"), Estado::Colocada) << "the remark is compared exactly";
    EXPECT_EQ(estado("IPV", u"2 MESES"), Estado::Colocada) << "the later row counts";
    EXPECT_EQ(estado("VCN", u"2 MESES"), Estado::Falta) << "another patient's dose";
    EXPECT_EQ(estado("VCN", u"12 MESES"), Estado::Proxima) << "twelve months are reached at fifteen";
    hoja.ponerEstados(5, std::nullopt);
    EXPECT_EQ(estado("BCG", u"1 MES"), Estado::SinEdad);
}

TEST(HojaDeVacunas, aMarkerRestsOnTheLineOfItsRow)
{
    vacunas::HojaDeVacunas hoja;
    vacunas::Planilla planilla =
        vacunas::planilla({dosis("BCG", "1 MES", "BCG"), dosis("HB", "12 MESES", "HB")});
    hoja.mostrar(planilla, vacunas::EdadDelPlan{14, 1, 2});
    const QRectF marca = hoja.item(u"marca(1)"_s)->place(), linea = hoja.item(u"linea(6)"_s)->place();
    EXPECT_DOUBLE_EQ(marca.top(), linea.top() - marca.height() + 30);
    EXPECT_DOUBLE_EQ(marca.left(), hoja.item(u"label2(1)"_s)->place().left() + 100);
    EXPECT_DOUBLE_EQ(hoja.item(u"Shape6"_s)->place().top(), hoja.item(u"linea(5)"_s)->place().top());
    // What the picture tells is what the places tell: overdue unless it lies below the band's upper edge.
    EXPECT_GT(marca.top() + 100, hoja.item(u"Shape6"_s)->place().top());
    EXPECT_LT(hoja.item(u"marca(0)"_s)->place().top() + 100, hoja.item(u"Shape6"_s)->place().top());
    EXPECT_EQ(hoja.numeroDe(u"marca(143)"_s), 143);
    EXPECT_FALSE(hoja.numeroDe(u"Shape6"_s));

    std::vector<vacunas::DosisDelPlan> muchas;
    for (int i = 0; i < 150; ++i)
        muchas.push_back(dosis("BCG", "1 MES", "BCG"));
    hoja.mostrar(vacunas::planilla(muchas), {});
    EXPECT_TRUE(hoja.item(u"marca(149)"_s)->isVisible()) << "the calendar always fits";
}

TEST(EdadDeDosis, isLateFromTheDayAfterTheRecommendedAgeUntilTheGreatest)
{
    const vacunas::EdadDeDosis rotavirus{61, 42, 104, 28, {}};
    const basic::Date nacimiento = dia("2024-01-01");
    const auto atraso = [&](const vacunas::EdadDeDosis &edad, int dias, std::optional<int> anterior = {}) {
        const auto cuando = [&](int n) { return basic::Date(nacimiento.date().addDays(n)); };
        return edad.atraso(nacimiento, cuando(dias),
                           anterior ? std::optional(cuando(*anterior)) : std::nullopt);
    };
    EXPECT_FALSE(atraso(rotavirus, 61));
    EXPECT_EQ(atraso(rotavirus, 62), 1);
    EXPECT_EQ(atraso(rotavirus, 104), 43);
    EXPECT_FALSE(atraso(rotavirus, 105)) << "it is not given any more";
    EXPECT_FALSE(atraso(rotavirus, 90, 62)) << "four weeks after the dose before";
    EXPECT_EQ(atraso(rotavirus, 91, 62), 1);

    const auto reparo = [&](int dias) {
        return !rotavirus.reparo(nacimiento, basic::Date(nacimiento.date().addDays(dias))).isEmpty();
    };
    EXPECT_TRUE(reparo(37));
    EXPECT_FALSE(reparo(38)) << "four days are let pass";
    EXPECT_FALSE(reparo(104));
    EXPECT_TRUE(reparo(105));
    EXPECT_TRUE(reparo(-1));

    vacunas::EdadDeDosis deUnosPocos{61, {}, {}, {}, u"nacidos desde 2024-01-02"_s};
    EXPECT_FALSE(atraso(deUnosPocos, 100));
    deUnosPocos.grupo = u"nacidos hasta 2024-01-01"_s;
    EXPECT_EQ(atraso(deUnosPocos, 100), 39);
    deUnosPocos.grupo = u"zona de riesgo"_s;
    EXPECT_FALSE(atraso(deUnosPocos, 100)) << "the doctor's to decide";
}

TEST_F(VacunasTest, whoIsLateIsToldByTrueAge)
{
    nino(5, "15/01/2024"); // 60 days: not late for the second month
    nino(6, "13/01/2024"); // 62 days
    nino(7, "15/11/2023"); // four months
    nino(8, "16/03/2006"); // a day before eighteen
    nino(9, "15/03/2006");
    nota(7, "20/01/2024", "IPV", "2 MESES");
    nota(7, "20/02/2024", "ROTA", "2 MESES", "INDICADA");
    nota(6, "10/03/2024", "VCN", "2 MESES");
    EXPECT_EQ(atrasados("IPV (Salk)"), (QStringList{u"6: 2 MESES"_s, u"8: 2 MESES"_s, u"8: 4 MESES"_s,
                                                    u"8: 6 MESES"_s, u"8: INGRESO ESCOL."_s}));
    EXPECT_EQ(atrasados("Rotavirus").size(), 1)
        << "the one of four months is beyond the greatest age of the first dose";
    EXPECT_FALSE(atrasados("Neumococo").contains(u"6: 2 MESES"_s));

    vacunas::guardarEdad(u"IPV"_s, u"2 MESES"_s, std::nullopt);
    run({"UPDATE CalVacunas SET [Tiempo en meses] = 1 WHERE Vacuna = 'IPV' and Dosis = '2 MESES'"});
    EXPECT_TRUE(atrasados("IPV (Salk)").contains(u"5: 2 MESES"_s)) << "without a true age, that of the row";

    bool sigue = true;
    EXPECT_FALSE(
        vacunas::Atrasos::buscar({}, hoy, [&](qint64, qint64) { return std::exchange(sigue, false); }));
}

TEST_F(VacunasTest, lettersAreTakenAwayAndOthersStay)
{
    nino(6, "13/01/2024");
    run({"INSERT INTO CartasVacunas (Lote, Paciente) VALUES ('de otra estación', 1)"});
    const vacunas::Atrasos atrasos = *vacunas::Atrasos::buscar({u"Neumococo"_s}, hoy);
    QString escrito, seleccion;
    vacunas::conCartas(atrasos, {}, [&](const QString &de) {
        seleccion = de;
        escrito = rows(u"Select Paciente, Vacuna, Dosis, Atraso from CartasVacunas where Paciente = 6"_s);
    });
    EXPECT_EQ(escrito, u"6,Neumococo,2 MESES,1 día"_s);
    EXPECT_TRUE(seleccion.startsWith(u"{CartasVacunas.Lote} = "));
    EXPECT_THROW(vacunas::conCartas(atrasos, {}, [](const QString &) { throw basic::Error(1, u"x"_s); }),
                 basic::Error);
    vacunas::conCartas(
        atrasos, [](qint64, qint64) { return false; }, [](const QString &) { FAIL() << "it was stopped"; });
    EXPECT_EQ(column(u"Select Lote from CartasVacunas"_s), QStringList{u"de otra estación"_s});
}

TEST(TiempoEnPalabras, goesByTheCalendar)
{
    const auto palabras = [](const char *desde, const char *hasta) {
        return vacunas::tiempoEnPalabras(dia(desde), dia(hasta)).toStdString();
    };
    EXPECT_EQ(palabras("2024-03-15", "2024-03-16"), "1 día");
    EXPECT_EQ(palabras("2024-01-31", "2024-02-28"), "28 días");
    EXPECT_EQ(palabras("2024-01-31", "2024-02-29"), "1 mes");
    EXPECT_EQ(palabras("2023-03-15", "2024-03-14"), "11 meses");
    EXPECT_EQ(palabras("2023-03-15", "2024-03-15"), "1 año");
    EXPECT_EQ(palabras("2021-01-15", "2024-03-15"), "3 años y 2 meses");
}

/// What is delivered must fit on the sheet and make sense by itself, whatever the year's figures are.
TEST_F(VacunasTest, everyNationalCalendarFitsAndIsConsistent)
{
    for (const vacunas::Calendario &calendario : vacunas::calendarios()) {
        SCOPED_TRACE(calendario.pais);
        nota(5, "01/02/2023", "BCG", "1 MES");
        const std::vector<vacunas::DosisDeCalendario> todas = vacunas::leerCalendario(calendario);
        ASSERT_GT(todas.size(), 15u);
        std::set<std::pair<QString, QString>> claves;
        for (const vacunas::DosisDeCalendario &una : todas) {
            EXPECT_TRUE(claves.emplace(una.dosis.vacuna, una.dosis.dosis).second)
                << qPrintable(una.dosis.vacuna);
            EXPECT_LE(una.edad.minima.value_or(0), una.edad.recomendada);
            EXPECT_GE(una.edad.maxima.value_or(una.edad.recomendada), una.edad.recomendada);
        }
        vacunas::cargarCalendario(calendario);
        const std::vector<vacunas::DosisDelPlan> plan = vacunas::plan();
        EXPECT_EQ(plan.size(), todas.size());
        EXPECT_EQ(vacunas::planilla(plan).sinLugar, 0);
        const vacunas::Edades edades;
        for (const vacunas::DosisDelPlan &dosisDelPlan : plan)
            EXPECT_NE(edades.guardada(dosisDelPlan.vacuna, dosisDelPlan.dosis), nullptr);
    }
    EXPECT_EQ(one(u"Select count(*) from Vacunas"_s), u"5"_s);
    EXPECT_EQ(one(u"Select count(*) from CalVacunas where TemasRelacionados is null"_s), u"0"_s);
}
