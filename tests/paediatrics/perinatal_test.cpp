#include "core/services/hallazgosPerinatales.h"
#include "delivered.h"
#include "paediatrics/anthropometry/tablaLms.h"
#include "paediatrics/perinatal/alNacer.h"
#include "paediatrics/perinatal/apgar.h"
#include "paediatrics/perinatal/ficha.h"

using namespace Qt::StringLiterals;
using namespace perinatal;

namespace
{

class PerinatalTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Fecha de Nacimiento], Sexo) VALUES (7, 'Luz', "
             "cdate('10/03/2024'), 'Mujer')",
             "INSERT INTO Medidas (Paciente, fecha, Peso, Talla, Pc) VALUES (7, cdate('10/03/2024'), 3000, 48, 34)",
             "INSERT INTO Medidas (Paciente, fecha, Peso, Talla, Pc) VALUES (7, cdate('11/03/2024'), 2900, 0, 0)",
             "INSERT INTO Medidas (Paciente, fecha, Peso, Talla, Pc) VALUES (8, cdate('10/03/2024'), 1, 1, 1)"});
    }

    static QString medidas()
    {
        return rows(u"Select fecha, Peso, Talla, Pc from Medidas where Paciente = 7 order by fecha"_s);
    }
};

} // namespace

TEST_F(PerinatalTest, birthMeasuresTakeThePlaceOfThoseOfTheDay)
{
    const Ficha ficha{{{u"Peso al Nacer"_s, u"3.250"_s}, {u"Talla al Nacer"_s, u"49,5"_s}}, {}, {}, {}};
    guardar(7, ficha);
    guardar(7, ficha);
    EXPECT_EQ(medidas(), u"10/03/2024,3250,49,5,0|11/03/2024,2900,0,0"_s);
    EXPECT_EQ(one(u"Select Peso from Medidas where Paciente = 8"_s), u"1"_s);
    EXPECT_EQ(one(u"Select [Peso al nacer] from Perinatal where idPaciente = 7"_s), u"3.250"_s);
    EXPECT_EQ(one(u"Select count(*) from Perinatal"_s), u"1"_s);

    guardar(7, {{{u"Peso al Nacer"_s, u"no se pesó"_s}, {u"Talla al Nacer"_s, QString()}}, {}, {}, {}});
    EXPECT_EQ(medidas(), u"10/03/2024,0,0,0|11/03/2024,2900,0,0"_s);

    run({"UPDATE Pacientes SET [Fecha de Nacimiento] = NULL where Numero = 7"});
    guardar(7, ficha);
    EXPECT_EQ(medidas(), u"10/03/2024,0,0,0|11/03/2024,2900,0,0"_s);
}

TEST_F(PerinatalTest, onlyTheColumnsThatAreNamedChange)
{
    run({"INSERT INTO Pediatria (numero, [Nombre de la Madre], [Profilaxis crede]) VALUES (7, 'Ana', True)",
         "INSERT INTO Perinatal (idPaciente, [Apgar total 1 min], VDRL) VALUES (7, '8', True)"});
    guardar(7, {{{u"paridad"_s, u"2"_s}}, {}, {u"D'Angelo"_s, u"Asma"_s}, {u"Ictericia"_s}});
    const Ficha leida = leer(7);
    EXPECT_EQ(valor(leida.perinatal, u"APGAR TOTAL 1 MIN"_s).text(), u"8"_s);
    EXPECT_EQ(valor(leida.perinatal, u"Paridad"_s).text(), u"2"_s);
    EXPECT_TRUE(valor(leida.perinatal, u"VDRL"_s).truth());
    EXPECT_TRUE(valor(leida.pediatria, u"Profilaxis crede"_s).truth());
    EXPECT_EQ(leida.patologias, (QStringList{u"D'Angelo"_s, u"Asma"_s}));
    EXPECT_EQ(leida.diagnosticos, QStringList(u"Ictericia"_s));

    guardar(7, {{}, {{u"Observaciones del recien Nacido"_s, u"Bien"_s}}, {}, {}});
    EXPECT_TRUE(leer(7).patologias.isEmpty());
    EXPECT_EQ(rows(u"Select [Nombre de la Madre], [Observaciones del recien Nacido] from Pediatria"_s),
              u"Ana,Bien"_s);
    guardar(9, {{}, {{u"Observaciones del recien Nacido"_s, u"Bien"_s}}, {}, {}});
    EXPECT_EQ(one(u"Select [Observaciones del recien Nacido] from Pediatria where numero = 9"_s), u"Bien"_s);
    EXPECT_TRUE(leer(10).perinatal.empty());
}

TEST_F(PerinatalTest, whatIsNoNumberIsKeptAndHasNoLimits)
{
    guardar(7, {{{u"Apgar total 1 min"_s, u"x"_s},
                 {u"Apgar total 5 min"_s, u"6"_s},
                 {u"Edad de la Madre al Nacer"_s, u"39,5"_s},
                 {u"Peso anterior de la Madre"_s, u"cincuenta"_s}},
                {},
                {},
                {}});
    EXPECT_EQ(services::hallazgosPerinatales(7),
              (QStringList{u"Edad de la madre en parto : 39,5"_s, u"Apgar a los 5 min. : 6"_s}));
}

TEST(Apgar, theTotalIsTheSumOfWhatIsANumber)
{
    EXPECT_EQ(totalDeApgar({u"2"_s, u"x"_s, u""_s, u"1"_s, u"2"_s}), u"5"_s);
    EXPECT_EQ(totalDeApgar({u"7"_s, u"2"_s, u"2"_s, u"2"_s, u"2"_s}), u"15"_s) << "no score is checked";
    EXPECT_EQ(totalDeApgar({}), u"0"_s);
}

/// Every percentile that is published, for both models of either measure and sex.
TEST(AlNacer, percentilesAreThePublishedOnes)
{
    QFile csv(QStringLiteral(DATA "/peso_nacimiento.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QByteArrayList titulos = csv.readLine().trimmed().split(',');
    int celdas = 0;
    while (!csv.atEnd()) {
        const QByteArrayList fila = csv.readLine().trimmed().split(',');
        const MedidaAlNacer medida = fila[0] == "peso"       ? MedidaAlNacer::Peso
                                     : fila[0] == "longitud" ? MedidaAlNacer::Longitud
                                                             : MedidaAlNacer::PerimetroCefalico;
        for (qsizetype i = titulos.indexOf("P3"); i < titulos.size(); ++i, ++celdas) {
            const auto z = puntajeZ(medida, fila[1] == "V" ? u"Varon"_s : u"Mujer"_s, fila[2].toInt(),
                                    fila[i].toDouble());
            ASSERT_TRUE(z);
            EXPECT_NEAR(paediatrics::percentilDe(*z), titulos[i].mid(1).toDouble(), 0.8)
                << fila.join(',').toStdString();
        }
    }
    EXPECT_EQ(celdas, 798 * 9);
}

TEST(AlNacer, isToldInWordsForTheWeeks)
{
    const auto dice = [](int dias, double gramos) {
        return enPalabras(MedidaAlNacer::Peso, u"Varon", dias, gramos).toStdString();
    };
    EXPECT_EQ(dice(280, 3384), "P50, z 0,0, adecuado para 40 semanas");
    EXPECT_EQ(dice(281, 2700), "P4, z -1,8, bajo para 40 semanas y 1 día");
    EXPECT_EQ(dice(230, 1502), "P10, z -1,3, adecuado para 32 semanas y 6 días")
        << "very preterm: another model";
    EXPECT_EQ(dice(280, 4300), "P98, z +2,0, alto para 40 semanas");
    EXPECT_EQ(dice(167, 500), "");
    EXPECT_EQ(dice(301, 3500), "");
    EXPECT_EQ(dice(280, 0), "");
    EXPECT_EQ(enPalabras(MedidaAlNacer::Longitud, u"", 280, 50), QString());
}

TEST(AlNacer, weeksAreReadAsTheyAreWritten)
{
    for (const auto &[escrito, dias] : {std::pair{u"39"_s, 273},
                                        {u" 39 + 4 "_s, 277},
                                        {u"39+4 sem."_s, 277},
                                        {u"39 semanas"_s, 273},
                                        {u"39,5"_s, 276}})
        EXPECT_EQ(diasDeGestacion(escrito), dias) << escrito.toStdString();
    for (const QString &escrito : {u""_s, u"a término"_s, u"39+7"_s, u"-3"_s, u"280"_s})
        EXPECT_EQ(diasDeGestacion(escrito), std::nullopt) << escrito.toStdString();
}
