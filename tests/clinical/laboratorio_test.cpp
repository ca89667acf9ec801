#include "clinical/laboratory/analisis.h"
#include "clinical/laboratory/estudios.h"
#include "clinical/laboratory/perfiles.h"
#include "clinical/laboratory/tendencia.h"
#include "delivered.h"

using namespace Qt::StringLiterals;
using laboratorio::Resultado;

namespace
{

class LaboratorioTest : public DeliveredBase
{
protected:
    static dao::Recordset pedir(const QStringList &estudios)
    {
        dao::Recordset orden = MODULE11::BaseDatos.openRecordset(u"Select * from Analisis"_s);
        orden.addNew();
        laboratorio::escribirPedido(orden, 7,
                                    {basic::Date(QDate(2024, 3, 15)), basic::Date(QTime(10, 30)),
                                     u"Dra. O'Higgins"_s, u"<Varios>"_s, estudios});
        orden.update();
        orden.setBookmark(orden.lastModified());
        return orden;
    }

    static void poner(dao::Recordset &orden, const Resultado &resultado)
    {
        orden.edit([&] { laboratorio::escribirResultado(orden, resultado); });
    }
};

} // namespace

TEST_F(LaboratorioTest, theOrderIsTheColumnsThatAreNotNull)
{
    dao::Recordset nada = pedir({});
    EXPECT_TRUE(laboratorio::resultados(nada).empty());
    EXPECT_EQ(one(u"Select Fecha from Analisis"_s), u"15/03/2024"_s);

    dao::Recordset orden = pedir({u"Plombemia"_s, u"Grupo sanguíneo y factor Rh"_s});
    poner(orden, {u"Plombemia"_s, u"3,2 µg/dl, \"bajo\"; O'K"_s});
    const std::vector<Resultado> esperados = {{u"Grupo sanguíneo y factor Rh"_s, u"-"_s},
                                              {u"Plombemia"_s, u"3,2 µg/dl, \"bajo\"; O'K"_s}};
    EXPECT_EQ(laboratorio::resultados(orden), esperados);
    laboratorio::llenarPlanilla({{u"Ferremia"_s, u"80"_s}});
    laboratorio::llenarPlanilla(laboratorio::resultados(orden));
    EXPECT_EQ(column(u"Select Resultado from tmpAnalisis order by Estudio"_s),
              (QStringList{u"-"_s, u"3,2 µg/dl, \"bajo\"; O'K"_s}));
}

TEST_F(LaboratorioTest, aColumnMoreIsATestMore)
{
    const QStringList antes = laboratorio::estudios();
    EXPECT_FALSE(antes.contains(u"Descripcion"_s, Qt::CaseInsensitive));
    EXPECT_FALSE(antes.contains(u"Paciente"_s, Qt::CaseInsensitive));
    run({"ALTER TABLE Analisis ADD COLUMN [Ácido láctico] TEXT(20)",
         "ALTER TABLE Analisis ADD COLUMN [Fecha del hisopado] DATE"});
    EXPECT_EQ(laboratorio::estudios(), antes + (QStringList{u"Ácido láctico"_s, u"Fecha del hisopado"_s}));

    dao::Recordset orden = pedir({u"Ácido láctico"_s, u"Fecha del hisopado"_s});
    EXPECT_EQ(laboratorio::resultados(orden), (std::vector<Resultado>{{u"Ácido láctico"_s, u"-"_s}}))
        << "a day that is not known is Null";
    EXPECT_EQ(laboratorio::largoDelResultado(orden, u"Ácido láctico"_s), 20);
    EXPECT_EQ(laboratorio::largoDelResultado(orden, u"Ferremia"_s), 255);
    poner(orden, {u"Fecha del hisopado"_s, u"14/03/2024"_s});
    EXPECT_EQ(one(u"Select [Fecha del hisopado] from Analisis"_s), u"14/03/2024"_s);
}

TEST_F(LaboratorioTest, ordersOfOneDayAreComparedByTheHour)
{
    run({"INSERT INTO Analisis (paciente, Fecha, Hora, [Vitamina D]) VALUES (7, cdate('10/03/2024'), "
         "cdate('16:00'), '31')",
         "INSERT INTO Analisis (paciente, Fecha, Hora, TSH) VALUES (7, cdate('10/03/2024'), cdate('08:00'), '2')",
         "INSERT INTO Analisis (paciente, Fecha, Hora, TSH) VALUES (8, cdate('10/03/2024'), cdate('08:00'), '9')",
         "INSERT INTO Analisis (paciente, Fecha, Hora, TSH) VALUES (7, cdate('11/02/2024'), cdate('20:00'), '3')"});
    EXPECT_EQ(rows(laboratorio::comparacion(7, {u"Vitamina D"_s, u"TSH"_s})),
              u"11/02/2024,20:00:00,,3|10/03/2024,08:00:00,,2|10/03/2024,16:00:00,31,"_s);
    EXPECT_EQ(rows(laboratorio::comparacion(8, {})), u"10/03/2024,08:00:00"_s);
}

TEST(FechaDeEstudio, isADayOrADash)
{
    const basic::Date hoy(QDate(2024, 3, 15));
    for (const auto &[escrito, queda] : {std::pair{u"5/2/24"_s, u"05/02/2024"_s},
                                         {u" - "_s, u"-"_s},
                                         {u"31/02/2024"_s, u"15/03/2024"_s},
                                         {u"ayer"_s, u"15/03/2024"_s},
                                         {u""_s, u"15/03/2024"_s}})
        EXPECT_EQ(estudios::fechaEscrita(escrito, hoy), queda) << escrito.toStdString();
    EXPECT_TRUE(estudios::fechaParaGuardar(u"-"_s).isNull());
    EXPECT_EQ(estudios::fechaParaGuardar(u"05/02/2024"_s), basic::Value(QDate(2024, 2, 5)));
    EXPECT_EQ(estudios::textoDeFecha(basic::Null{}), u"-"_s);
}

TEST(Tendencia, aResultBeginsWithAFigureOrHasNone)
{
    for (const auto &[texto, valor] : {std::pair{u"11,2 g/dl d'hoy"_s, 11.2},
                                       {u"12.5"_s, 12.5},
                                       {u" 250.000 /mm3"_s, 250000.0},
                                       {u"< 0,5"_s, 0.5},
                                       {u"7."_s, 7.0},
                                       {u"-2,1 DE"_s, -2.1},
                                       {u"140mg"_s, 140.0}})
        EXPECT_EQ(laboratorio::valorDelResultado(texto), valor) << texto.toStdString();
    for (const char *sinCifra :
         {"-", "", "Negativo", "1:80", "2-4 por campo", "10/20", "1,2,3", "xx/xx/xxxx"})
        EXPECT_FALSE(laboratorio::valorDelResultado(QString::fromUtf8(sinCifra))) << sinCifra;
}

TEST_F(LaboratorioTest, theTrendOfATestGoesByDayAndHour)
{
    run({"ALTER TABLE Analisis ADD COLUMN [Ácido láctico] TEXT(20)",
         "INSERT INTO Analisis (paciente, Fecha, Hora, [Ácido láctico], TSH) VALUES (7, cdate('10/03/2024'), "
         "cdate('16:00'), '2,5 mmol', '-')",
         "INSERT INTO Analisis (paciente, Fecha, Hora, [Ácido láctico]) VALUES (7, cdate('10/03/2024'), "
         "cdate('08:00'), '3')",
         "INSERT INTO Analisis (paciente, Fecha, [Ácido láctico], TSH) VALUES (7, cdate('11/02/2024'), 'hemolizado', "
         "'2')",
         "INSERT INTO Analisis (paciente, [Ácido láctico]) VALUES (7, '9')",
         "INSERT INTO Analisis (paciente, Fecha, Ferremia) VALUES (8, cdate('11/02/2024'), '60')"});
    const QDate dia(2024, 3, 10);
    EXPECT_EQ(laboratorio::tendencia(7, u"Ácido láctico"_s),
              (std::vector<laboratorio::Punto>{{dia.startOfDay().addSecs(8 * 3600), 3, u"3"_s},
                                               {dia.startOfDay().addSecs(16 * 3600), 2.5, u"2,5 mmol"_s}}));
    EXPECT_EQ(laboratorio::estudiosConValores(7), (QStringList{u"TSH"_s, u"Ácido láctico"_s}));
    EXPECT_TRUE(laboratorio::tendencia(7, u"No es columna"_s).empty());

    EXPECT_TRUE(laboratorio::rango(u"TSH"_s).vacio());
    laboratorio::guardarRango(u"TSH"_s, {0.4, 4.2});
    laboratorio::guardarRango(u"TSH"_s, {{}, 4.5});
    EXPECT_EQ(laboratorio::rango(u"tsh"_s), (laboratorio::Rango{{}, 4.5}));
    EXPECT_TRUE(laboratorio::rango(u"TSH"_s).contiene(4.5) && !laboratorio::rango(u"TSH"_s).contiene(4.6));
    laboratorio::guardarRango(u"TSH"_s, {});
    EXPECT_EQ(one(u"Select count(*) from RangosLaboratorio"_s), u"0"_s);
}

TEST_F(LaboratorioTest, aProfileIsReplacedByItsNameWhateverItsCase)
{
    laboratorio::guardarPerfil(u"Control d'anemia"_s, {u"Hemoglobina"_s, u"Vitamina B12"_s});
    laboratorio::guardarPerfil(u"Tiroides"_s, {u"TSH"_s});
    laboratorio::guardarPerfil(u"CONTROL D'ANEMIA"_s, {u"Ferritina"_s});
    EXPECT_EQ(laboratorio::perfiles(), (QStringList{u"CONTROL D'ANEMIA"_s, u"Tiroides"_s}));
    EXPECT_EQ(laboratorio::estudiosDelPerfil(u"Control d'Anemia"_s), QStringList{u"Ferritina"_s});
    laboratorio::borrarPerfil(u"tiroides"_s);
    EXPECT_EQ(laboratorio::perfiles(), QStringList{u"CONTROL D'ANEMIA"_s});
}

TEST_F(LaboratorioTest, theCatalogueTakesAStudyOnce)
{
    run({"Delete * from TablaEstudios"});
    EXPECT_EQ(estudios::agregarAlCatalogo(u"Holter d'24 horas"_s), u"Holter d'24 horas"_s);
    EXPECT_EQ(estudios::agregarAlCatalogo(u"HOLTER D'24 HORAS"_s), u"Holter d'24 horas"_s);
    EXPECT_EQ(rows(u"Select Estudio from TablaEstudios"_s), u"Holter d'24 horas"_s);
}
