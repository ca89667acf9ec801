#include "delivered.h"

#include "specialties/eye/archivo.h"
#include "specialties/eye/impri2.h"
#include "specialties/eye/refraccion.h"
#include "specialties/eye/visita.h"

#include <QDir>
#include <QFile>

#include <set>

using namespace Qt::StringLiterals;
using namespace oftalmo;

TEST(Refraccion, isReadAsItIsWritten)
{
    EXPECT_EQ(refraccionDe(u"+1,25 -0.50 x 90"_s), (Refraccion{1.25, -0.5, 90}));
    EXPECT_EQ(refraccionDe(u" -2 -1 a 180° "_s), (Refraccion{-2, -1, 180}));
    EXPECT_EQ(refraccionDe(u"neutro -0,75 x 10"_s), (Refraccion{0, -0.75, 10}));
    EXPECT_EQ(refraccionDe(u"- 1.50 esf"_s), (Refraccion{-1.5, 0, 0}));
    for (const QString &texto :
         {u""_s, u"no colabora"_s, u"-1 x 200"_s, u"-1 -1 x 200"_s, u"-1 -1"_s, u"80"_s})
        EXPECT_EQ(refraccionDe(texto), std::nullopt) << texto.toStdString();
}

TEST(Refraccion, theTransposedLensIsTheSameLens)
{
    const Refraccion lente{1.25, -0.5, 90};
    EXPECT_EQ(lente.transpuesta(), (Refraccion{0.75, 0.5, 180}));
    EXPECT_EQ(lente.transpuesta().transpuesta(), lente);
    EXPECT_DOUBLE_EQ(lente.equivalenteEsferico(), lente.transpuesta().equivalenteEsferico());
    EXPECT_EQ((Refraccion{0, -1, 91}.transpuesta()), (Refraccion{-1, 1, 1}));
    EXPECT_EQ(cuentaDe(u"-3"_s), u"E.E. -3,00"_s);
    EXPECT_EQ(cuentaDe(u"+1 -0,25 x 5"_s), u"E.E. +0,88   Transp. +0,75 +0,25 x 95°"_s);
}

TEST(Refraccion, acuityAndPressureAreFigures)
{
    EXPECT_EQ(agudezaDe(u"8/10"_s), 0.8);
    EXPECT_EQ(agudezaDe(u"20/40"_s), 0.5);
    EXPECT_EQ(agudezaDe(u"0,7"_s), 0.7);
    EXPECT_EQ(agudezaDe(u"Bultos"_s), 0);
    for (const QString &texto : {u""_s, u"8/0"_s, u"bien"_s, u"10"_s})
        EXPECT_EQ(agudezaDe(texto), std::nullopt) << texto.toStdString();
    EXPECT_EQ(presionDe(u"16 mmHg"_s), 16);
    EXPECT_EQ(presionDe(u"14,5"_s), 14.5);
    EXPECT_EQ(presionDe(u"140"_s), std::nullopt);
}

TEST(ArchivoDelDibujo, hasLinesOfFixedWidth)
{
    const Dibujo dibujo{{{3, {1200.4, 45}, u"HL"_s}}, {{0, {0, 99}, u" d'un lado "_s}}, u"Nada"_s};
    const QStringList lineas = enTexto(dibujo).split(u'\n');
    ASSERT_EQ(lineas.size(), 4);
    EXPECT_EQ(lineas[0], u"P03+0004501200HL"_s + u" "_s.repeated(184));
    EXPECT_EQ(lineas[1].left(23), u"T00+0009900000d'un lado"_s);
    EXPECT_EQ(lineas[1].size(), 200);
    EXPECT_EQ(lineas[2], u"ONada"_s);
}

TEST(ArchivoDelDibujo, isReadBackWhatIsSeenOfIt)
{
    const Dibujo dibujo{{{99, {14000, 7000}, u"CI"_s}},
                        {{1, {10, 20}, u"dos\nlíneas y una \\n"_s}},
                        u"Observación\ncon \\ y \\n\n"_s};
    EXPECT_EQ(deTexto(enTexto(dibujo)), dibujo);
    EXPECT_EQ(deTexto(u"P01-0000100002CI\r\nP02+0000100002CI\r\nP0x+0000100002CI\r\nP\r\nOFin\r\n"_s),
              (Dibujo{{{2, {2, 1}, u"CI"_s}}, {}, u"Fin"_s}));
}

TEST(Sellos, eachHasItsPictureAndALetterPairOfItsOwn)
{
    for (const Clase clase : clases) {
        std::set<QString> codigos;
        EXPECT_GE(plano(clase).paleta.size(), 20u);
        for (const dibujo::Simbolo &sello : plano(clase).paleta) {
            EXPECT_TRUE(QFile::exists(u":/ojos/%1.svg"_s.arg(sello.dibujo)))
                << sello.dibujo.toString().toStdString();
            EXPECT_EQ(sello.codigo.size(), 2);
            EXPECT_TRUE(codigos.insert(sello.codigo.toString()).second)
                << sello.codigo.toString().toStdString();
        }
    }
}

class VisitaOftalmologica : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        qputenv("SANIRELL_CARPETA", folder.path().toUtf8());
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
        MODULE11::DrActual = u"Dra. O'Higgins"_s;
        run({"INSERT INTO [Obra Social] (Descripcion, [Precio Consulta]) VALUES ('O''Salud', 1500)",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Obra Social]) VALUES (7, 'D''Angelo', 'O''Salud')"});
    }
    void TearDown() override
    {
        qunsetenv("SANIRELL_CARPETA");
        DeliveredBase::TearDown();
    }
    QStringList dibujos() const { return QDir(folder.path()).entryList({u"*.DAT"_s}); }
};

TEST_F(VisitaOftalmologica, aNewOneHasBothRowsAndAnEditOne)
{
    records::Valores valores = visitaNueva(7);
    valores[u"motivo"_s] = u"Control d'anteojos"_s;
    valores[u"diagnostico"_s] = QString(300, u'x');
    const qint64 id = guardarVisita(7, 0, {valores});
    EXPECT_EQ(rows(u"Select Mutual, Monto, Dr, Tipo, Motivo, Hora from Consulta"_s),
              u"O'Salud,1500,Dra. O'Higgins,1ra.,Control d'anteojos,10:30:00"_s);
    EXPECT_EQ(one(u"Select len([Diagnostico 1]) from Consulta"_s), u"255"_s);
    EXPECT_EQ(ultimaVisita(7), id);

    records::Valores editada = *leerVisita(id);
    EXPECT_EQ(records::valor(editada, u"Estra_LT9"_s).text(), u"0"_s);
    editada[u"motivo"_s] = u"Otro"_s;
    EXPECT_EQ(guardarVisita(7, id, {editada}), id);
    EXPECT_EQ(rows(u"Select idConsulta, motivo from ConsultaOftalmo"_s), u"%1,Otro"_s.arg(id));
    EXPECT_EQ(one(u"Select count(*) from Consulta"_s), u"1"_s);
    EXPECT_EQ(leerVisita(id + 1), std::nullopt);
}

TEST_F(VisitaOftalmologica, drawingsOfOneSecondHaveFilesOfTheirOwnAndAreReplacedWhole)
{
    const Dibujo largo{{{0, {1, 2}, u"CI"_s}, {1, {3, 4}, u"UL"_s}}, {}, {}}, corto{{}, {}, u"Nada"_s};
    const qint64 id =
        guardarVisita(7, 0, {visitaNueva(7), {{Clase::Biomicroscopia, largo}, {Clase::Fondo, corto}}});
    EXPECT_EQ(dibujos(), (QStringList{u"20240315103000.DAT"_s, u"20240315103000_1.DAT"_s}));
    const records::Valores leida = *leerVisita(id);
    const QString base = records::valor(leida, columnaDe(Clase::Biomicroscopia)).text();
    EXPECT_EQ(leerDibujo(base), largo);
    guardarVisita(7, id, {leida, {{Clase::Biomicroscopia, corto}}});
    EXPECT_EQ(leerDibujo(base), corto);
    EXPECT_EQ(dibujos().size(), 2);
}

TEST_F(VisitaOftalmologica, oneThatCannotBeWrittenLeavesNothing)
{
    records::Valores valores = visitaNueva(7);
    valores[u"tensionocuod"_s] = QString(300, u'9');
    EXPECT_THROW(guardarVisita(7, 0, {valores, {{Clase::Fondo, {}}}}), dao::Error);
    EXPECT_EQ(one(u"Select count(*) from Consulta"_s), u"0"_s);
    EXPECT_TRUE(dibujos().isEmpty());
}

TEST_F(VisitaOftalmologica, glassesAreTheLinesThatTheVisitHas)
{
    EXPECT_EQ(
        lineasDeAnteojos({{u"antreclejOD"_s, u"-1"_s}, {u"antreccerOi"_s, u"+2"_s}, {u"r_p"_s, u"Uso"_s}}),
        (QStringList{u"Lejos O.D. : -1"_s, u"Cerca O.I. : +2"_s, u"Uso"_s}));
}

TEST_F(VisitaOftalmologica, theTextsOfAKindStandOnce)
{
    for (int i = 0; i < 2; ++i)
        agregarTexto(Textos::Motivos, u"Control d'anteojos"_s);
    agregarTexto(Textos::Recetas, u"Gotas"_s);
    EXPECT_EQ(column(consultaDeTextos(Textos::Motivos)), QStringList{u"Control d'anteojos"_s});
    quitarTexto(Textos::Motivos, u"Control d'anteojos"_s);
    EXPECT_TRUE(column(consultaDeTextos(Textos::Motivos)).isEmpty());
}
