#include "clinical/family/antecedentes.h"
#include "delivered.h"

using namespace Qt::StringLiterals;
using familia::Antecedentes;

namespace
{

const QString abuelo = u"Abuelo Paterno"_s;

class FamiliaTest : public DeliveredBase
{
protected:
    static QString afecciones()
    {
        return column(
                   u"Select Afeccion from Antecedentes where Paciente = 7 and Pariente = 'Abuelo Paterno'"_s)
            .join(u'|');
    }
};

} // namespace

TEST_F(FamiliaTest, anAffectionTellsItsKindByHowItBegins)
{
    run({"INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (7, 'Mama', 'Diabetes')",
         "INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (7, 'Mama', '=Asma')",
         "INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (7, 'Mama', '==Rara')",
         "INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (7, 'Mama', 'FALL : Accidente')",
         "INSERT INTO Antecedentes (Paciente, Pariente) VALUES (7, 'Mama')",
         "INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (8, 'Mama', 'Obesidad')"});
    EXPECT_EQ(familia::leer(7, u"Mama"_s),
              (Antecedentes{{u"Diabetes"_s}, {u"Asma"_s, u"=Rara"_s}, u"Accidente"_s}));
    EXPECT_EQ(familia::leer(7, u"Papa"_s), Antecedentes());
}

TEST_F(FamiliaTest, whatIsSavedReplacesThatRelativesRowsAlone)
{
    const Antecedentes todo{{u"Diabetes"_s, familia::fallecido}, {u"Enfermedad de O'Neill"_s}, u"Suicidio"_s};
    familia::guardar(7, abuelo, todo);
    familia::guardar(7, u"Abuelo Materno"_s, {{u"Obesidad"_s}, {}, {}});
    familia::guardar(8, abuelo, {{u"Tabaquismo"_s}, {}, {}});
    EXPECT_EQ(afecciones(), u"Diabetes|Fallecido|FALL : Suicidio|=Enfermedad de O'Neill"_s);
    EXPECT_EQ(familia::leer(7, abuelo), todo);

    familia::guardar(7, abuelo, {{familia::fallecido}, {}, {}}); // of an unknown cause
    EXPECT_EQ(afecciones(), u"Fallecido"_s);
    EXPECT_EQ(familia::leer(7, abuelo).muerte, std::nullopt);

    familia::guardar(7, abuelo, {});
    EXPECT_EQ(rows(u"Select Paciente, Pariente, Afeccion from Antecedentes order by Paciente"_s),
              u"7,Abuelo Materno,Obesidad|8,Abuelo Paterno,Tabaquismo"_s);
}

TEST_F(FamiliaTest, aDiseaseAsLongAsTheColumnIsKept)
{
    familia::guardar(7, abuelo, {{}, {QString(255, u'ñ')}, {}});
    EXPECT_EQ(familia::leer(7, abuelo).enfermedades, QStringList(QString(254, u'ñ')));
}

TEST_F(FamiliaTest, theSummaryGoesByTheTreeAndSaysTheDeathOnce)
{
    familia::guardar(7, u"Vecino d'al lado"_s, {{u"Alcoholismo"_s}, {}, {}}); // from another program
    familia::guardar(7, u"Hermanos"_s, {{familia::fallecido}, {}, {}});
    familia::guardar(7, u"Papa"_s, {{u"Diabetes"_s, familia::fallecido}, {u"Asma"_s}, u"Accidente"_s});
    familia::guardar(7, u"Abuela Materna"_s, {{}, {u"Gota"_s}, QString()});
    EXPECT_EQ(familia::resumen(familia::leer(7)),
              (QStringList{u"Abuela Materna -> Fallecido"_s, u"Abuela Materna -> Gota"_s,
                           u"Papa -> Fallecido : Accidente"_s, u"Papa -> Diabetes"_s, u"Papa -> Asma"_s,
                           u"Hermanos -> Fallecido"_s, u"Vecino d'al lado -> Alcoholismo"_s}));
}
