#include "delivered.h"

#include "core/session/session.h"
#include "figures/criterios.h"
#include "figures/dibujo.h"
#include "figures/evolucionAnual.h"
#include "figures/prevalencia.h"
#include "figures/turnosPorMes.h"
#include "platform/settings/settings.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace figures;

namespace
{

const basic::Date hoy(QDate(2024, 3, 15));

Seleccion todas()
{
    return {u"Ambos"_s, u"Todos"_s, Seleccion::Rango::Todos, u"Todas"_s};
}

} // namespace

TEST(Prevalencia, groupsOfAgeByDays)
{
    for (const auto &[dias, grupo] : {std::pair{30, 0},
                                      {31, 1},
                                      {730, 1},
                                      {731, 2},
                                      {2190, 2},
                                      {2191, 3},
                                      {4380, 3},
                                      {4381, 4},
                                      {30000, 4}})
        EXPECT_EQ(grupoDe(dias), grupo) << dias;
}

TEST(Criterios, connectivesJoinTheLinesAroundThem)
{
    EXPECT_EQ(
        criterios::condicion({u"[a] = 1"_s, criterios::peroNo, u"[b] = 2"_s, criterios::o, u"[c] = 3"_s}),
        u"[a] = 1 AND NOT [b] = 2 OR [c] = 3"_s);
    EXPECT_EQ(criterios::condicion({criterios::peroNo, u"[b] = 2"_s}), u"NOT [b] = 2"_s);
}

TEST(Dibujo, theScaleEndsAboveTheHighestValue)
{
    EXPECT_EQ(escalaPara(0).hasta, 1);
    EXPECT_EQ(escalaPara(3).paso, 1);
    EXPECT_EQ(escalaPara(3).hasta, 3);
    EXPECT_EQ(escalaPara(97).hasta, 100);
    EXPECT_EQ(escalaPara(101).paso, 50);
}

TEST(Dibujo, eachKindGivesEachValueItsPlace)
{
    const Figura figura{u"t"_s, {}, u"x"_s, u"y"_s, {{u"1"_s, 1}, {u"2"_s, 4}, {u"3"_s, 2}}};
    QImage hoja(600, 400, QImage::Format_RGB32);
    QPainter pintor(&hoja);
    for (int tipo = 1; tipo <= 11; ++tipo) {
        hoja.fill(Qt::white);
        dibujar(pintor, QRectF(0, 0, 600, 400), figura, static_cast<Tipo>(tipo));
        const Disposicion lugar =
            disponer(QRectF(0, 0, 600, 400), QFontMetricsF(pintor.font()), figura, static_cast<Tipo>(tipo));
        ASSERT_EQ(lugar.formas.size(), 3u);
        for (const QPainterPath &forma : lugar.formas) {
            EXPECT_FALSE(forma.boundingRect().isEmpty()) << tipo;
            const QRectF marco = forma.boundingRect();
            QPointF dentro = marco.center();
            if (tipo <= 2)
                dentro = forma.pointAtPercent(0.5) * 0.1 + dentro * 0.9;
            if (tipo == 11)
                dentro.setX(marco.left() + 1.5);
            const QPoint centro = dentro.toPoint();
            EXPECT_NE(hoja.pixelColor(centro), QColor(Qt::white)) << tipo;
        }
    }
    // What is more is higher, and a slice is wider.
    const auto barras =
        disponer(QRectF(0, 0, 600, 400), QFontMetricsF(pintor.font()), figura, Tipo::Barras).formas;
    EXPECT_NEAR(barras[1].boundingRect().height(), 4 * barras[0].boundingRect().height(), 0.5);
}

class FigurasTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        settings::saveSetting(u"Configuracion"_s, u"Clasificador patologico"_s, u"PERSONAL"_s);
        run({"Delete * from DIAGPERSONALES",
             "INSERT INTO DIAGPERSONALES (Descripcion) VALUES ('Crup d''emblée')",
             "INSERT INTO DIAGPERSONALES (Descripcion) VALUES ('Otitis')",
             "INSERT INTO Pacientes (Numero, Sexo, [Fecha de Nacimiento], [ultima fecha visita]) VALUES (1, 'Varon', cdate('15/03/2020'), cdate('10/03/2024'))",
             "INSERT INTO Pacientes (Numero, Sexo, [Fecha de Nacimiento], [ultima fecha visita]) VALUES (2, 'Mujer', cdate('01/03/2024'), cdate('10/03/2023'))",
             "INSERT INTO Consulta (Paciente, Fecha, Sexo, Edad, Tipo, [Diagnostico 1], [Diagnostico 3]) VALUES (1, cdate('31/12/2023'), 'Varon', 30, '1ra.', 'Otitis', 'otitis')",
             "INSERT INTO Consulta (Paciente, Fecha, Sexo, Edad, Tipo, [Diagnostico 1]) VALUES (1, cdate('10/03/2024'), 'Varon', 731, 'Ulterior', 'Crup d''emblée')",
             "INSERT INTO Consulta (Paciente, Fecha, Sexo, Edad, Tipo, [Diagnostico 1], [Diagnostico 2]) VALUES (2, cdate('11/03/2024'), 'Mujer', 31, '1ra.', 'Otitis', 'No está en la tabla')",
             "INSERT INTO [Antecedentes Personales] (Paciente, Antecedente) VALUES (1, 'Otitis')",
             "INSERT INTO [Antecedentes Personales] (Paciente, AlAl) VALUES (1, True)"});
    }
    static double valor(const Figura &figura, const QString &comienzo)
    {
        for (const Dato &dato : figura.datos)
            if (dato.rotulo.startsWith(comienzo))
                return dato.valor;
        return -1;
    }
};

TEST_F(FigurasTest, monthsOfAYearAsTheyAreStored)
{
    const auto deEseAnio = vecesPorMes(Nombrado::Patologias, u"Otitis"_s, 2023, {});
    EXPECT_EQ(deEseAnio[11], 1); // "otitis" is another name
    const auto veces = vecesPorMes(Nombrado::Patologias, u"Otitis"_s, 2024, {});
    EXPECT_EQ(veces[2], 1);
    EXPECT_EQ(vecesPorMes(Nombrado::Patologias, u"Otitis"_s, 2024, u"Varon"_s)[2], 0);
    EXPECT_EQ(vecesPorMes(Nombrado::Patologias, u"Crup d'emblée"_s, 2024, u"Varon"_s)[2], 1);
    EXPECT_EQ(MODULE11::BaseDatos
                  .openRecordset(visitasDelMes(Nombrado::Patologias, u"Crup d'emblée"_s, 2024, 3, {}))
                  .rowCount(),
              1);
}

TEST_F(FigurasTest, prevalenceBySexAndAge)
{
    const Figura sexos = porSexo(todas(), hoy);
    EXPECT_EQ(sexos.datos[0].rotulo, u"Varones - 2 casos."_s);
    EXPECT_EQ(sexos.datos[1].rotulo, u"Mujeres - 1 casos."_s);
    EXPECT_EQ(sexos.sobre, u"Sobre 3 consultas"_s);
    const Figura edades = porEdades(todas(), hoy);
    EXPECT_EQ(valor(edades, u"Recien Nacidos "_s), 1);
    EXPECT_EQ(valor(edades, u"Lactantes"_s), 1);
    EXPECT_EQ(valor(edades, u"Pre-escolares"_s), 1);
    EXPECT_EQ(valor(edades, u"Escolares"_s), 0);
    Seleccion selectas = todas();
    selectas.rango = Seleccion::Rango::AnioPasado;
    EXPECT_EQ(porSexo(selectas, hoy).sobre, u"Sobre 1 consultas"_s);
    selectas.rango = Seleccion::Rango::EsteMes;
    selectas.consulta = u"Ulterior"_s;
    EXPECT_EQ(porSexo(selectas, hoy).sobre, u"Sobre 1 consultas"_s);
    selectas.edad = u"RN"_s;
    EXPECT_TRUE(porSexo(selectas, hoy).datos.empty());
}

TEST_F(FigurasTest, namesAreCountedInTheCatalogue)
{
    const auto nombres = porNombre(Nombrado::Patologias, todas(), hoy, [](qint64) { return true; });
    ASSERT_TRUE(nombres);
    EXPECT_EQ(nombres->titulo, u"Prevalencia x Diagnósticos"_s);
    EXPECT_EQ(nombres->datos.size(), 3u);
    EXPECT_EQ(nombres->datos[0].rotulo, u"Otitis - 3 casos."_s); // looked up without regard to case
    EXPECT_EQ(nombres->datos[1].rotulo, u"Crup d'emblée - 1 casos."_s);
    EXPECT_EQ(nombres->datos[2].rotulo, u"Otros - 0 casos."_s);
    EXPECT_FALSE(porNombre(Nombrado::Patologias, todas(), hoy, [](qint64) { return false; }));
    const Figura antecedentes = porFuente(1, todas(), hoy);
    EXPECT_EQ(antecedentes.sobre, u"Sobre 2 pacientes"_s);
    EXPECT_EQ(antecedentes.datos[0].rotulo, u"Otitis - 1 casos."_s);
    Seleccion recienNacidos = todas();
    recienNacidos.edad = u"RN"_s;
    EXPECT_EQ(porFuente(1, recienNacidos, hoy).sobre, u"Sobre 1 pacientes"_s);
}

TEST_F(FigurasTest, appointmentsOverANewYearAreNone)
{
    run({"INSERT INTO Profesionales (idProfesional, Nombre, Especialidad) VALUES (9, 'Dra. O''Higgins', 'Alergia')",
         "INSERT INTO [Obra Social] (Descripcion) VALUES ('Plan d''Oro')",
         "INSERT INTO Turnos (Fecha, Estado, Dr, idProfesional, idMutual) SELECT cdate('10/11/2023'), 'Asignado', 'Dra. O''Higgins', 9, idObraSocial FROM [Obra Social] WHERE Descripcion = 'Plan d''Oro'"});
    FiltroDeTurnos filtro{QDate(2023, 10, 1), QDate(2023, 12, 31), u"Dra. O'Higgins"_s, u"Alergia"_s, {},
                          u"Plan d'Oro"_s};
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(consultaDeTurnos(filtro));
    ASSERT_FALSE(filas.eof());
    EXPECT_EQ(filas[u"Mes"].text(), u" 11 /  2023"_s);
    EXPECT_EQ(filas[u"Cantidad"].integer(), 1);
    filtro.hasta = QDate(2024, 2, 1);
    EXPECT_TRUE(MODULE11::BaseDatos.openRecordset(consultaDeTurnos(filtro)).eof());
}
