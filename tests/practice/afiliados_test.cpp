#include "delivered.h"

#include "platform/settings/settings.h"
#include "practice/affiliates/lineas.h"
#include "practice/affiliates/panImportAfiliados.h"
#include "practice/affiliates/proceso.h"

using namespace Qt::StringLiterals;
using afiliados::Letras;
using MODULE11::BaseDatos;

namespace
{

/// A roll of: affiliate number 10, name 20, sex 1, birth 8, document 9, tourist 1.
class RollTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"INSERT INTO CamposImport VALUES ('[Numero de Afiliado]', 1, 10, TRUE)",
             "INSERT INTO CamposImport VALUES ('Apellido y Nombres', 11, 20, FALSE)",
             "INSERT INTO CamposImport VALUES ('Sexo', 31, 1, FALSE)",
             "INSERT INTO CamposImport VALUES ('Fecha de Nacimiento', 32, 8, FALSE)",
             "INSERT INTO CamposImport VALUES ('Documento', 40, 9, FALSE)",
             "INSERT INTO CamposImport VALUES ('Es turista o esporadico', 49, 1, FALSE)",
             "INSERT INTO CamposImport VALUES ('Obra Social', 1, 10, FALSE)",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Numero de Afiliado], [Obra Social], "
             "[Fecha de Nacimiento]) VALUES (7, 'Viejo Nombre', 'A 1', 'Prepaga', cdate('01/02/1980'))"});
    }

    static QString line(const char *key, const char *name, const char *rest)
    {
        return QString::fromUtf8(key).leftJustified(10) + QString::fromUtf8(name).leftJustified(20) +
               QString::fromUtf8(rest);
    }
    QString write(const QStringList &lines, const char *letters = "UTF-8") const
    {
        QFile file(folder.filePath(u"padrón.txt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        QStringEncoder encoder(letters);
        file.write(encoder(lines.join(u"\r\n"_s)));
        return file.fileName();
    }
    static afiliados::Resumen take(const QString &file, bool trial = false)
    {
        return afiliados::actualizar({u"Mutual d'Oro"_s, file, trial}, afiliados::leerMapa(),
                                     [](qint64, qint64) { return true; });
    }
    static QString affiliate(const QString &key)
    {
        return rows(
            u"Select [Apellido y Nombres], Sexo, [Fecha de Nacimiento], Documento, [Obra Social] from "
            u"Pacientes where [Numero de Afiliado] = '%1'"_s.arg(key));
    }
};

} // namespace

TEST_F(RollTest, lettersAreToldAndPositionsCountCharacters)
{
    const QString lines = line("N1", "Muñoz Ibáñez, Ángel", "M1990031511222333") + u"\n"_s +
                          line("N2", "Núñez, María José", "F1991031522333444");
    for (const auto &[letters, set] : {std::pair{"UTF-8", Letras::Utf8},
                                       {"windows-1252", Letras::Windows1252},
                                       {"IBM850", Letras::Codigo850}}) {
        SCOPED_TRACE(letters);
        EXPECT_EQ(afiliados::letrasDe(QStringEncoder(letters)(lines)), set);
        BaseDatos.execute(u"Delete * from Pacientes where Numero > 7"_s);
        EXPECT_EQ(take(write(lines.split(u'\n'), letters)).nuevos, 2);
        EXPECT_EQ(affiliate(u"N1"_s), u"Muñoz Ibáñez, Ángel,Varon,15/03/1990,11222333,Mutual d'Oro");
        EXPECT_EQ(affiliate(u"N2"_s), u"Núñez, María José,Mujer,15/03/1991,22333444,Mutual d'Oro");
    }
    QFile marked(write({line("N1", "Otro", "")}));
    ASSERT_TRUE(marked.open(QIODevice::ReadOnly));
    const QByteArray content = "\xEF\xBB\xBF" + marked.readAll();
    marked.close();
    ASSERT_TRUE(marked.open(QIODevice::WriteOnly));
    marked.write(content);
    marked.close();
    EXPECT_EQ(take(marked.fileName()).modificados, 1);
}

TEST_F(RollTest, aKnownAffiliateChangesANewOneIsAddedAndASecondRunDoesNothing)
{
    const QString file =
        write({line("A 1", "Nuevo Nombre", "M19991399 123"), line("O'HIG  ", "O'Higgins, Ana", "")});
    const afiliados::Resumen trial = take(file, true);
    EXPECT_EQ(trial.nuevos, 1);
    EXPECT_EQ(trial.modificados, 1);
    EXPECT_EQ(one(u"Select count(*) from Pacientes"_s), u"1");

    const afiliados::Resumen first = take(file);
    EXPECT_EQ(first.nuevos, 1);
    EXPECT_EQ(first.modificados, 1);
    // what is no day leaves the known one's as it is
    EXPECT_EQ(affiliate(u"A 1"_s), u"Nuevo Nombre,Varon,01/02/1980,123,Mutual d'Oro");
    EXPECT_EQ(
        rows(u"Select Numero, idProfesional, [Fecha de Nacimiento], Sexo from Pacientes where [Numero de "
             u"Afiliado] = 'O''HIG'"_s),
        u"8,0,,Mujer");
    EXPECT_EQ(one(u"Select count(*) from Pediatria where numero = 8"_s), u"1");

    const afiliados::Resumen second = take(file);
    EXPECT_EQ(second.nuevos + second.modificados, 0);
    EXPECT_EQ(second.iguales, 2);
}

TEST_F(RollTest, everyKindOfBadLineIsSkippedOrMendedAndTold)
{
    const QString longDocument(40, u'9');
    BaseDatos.execute(u"UPDATE CamposImport SET Tamano = 40 where CampoEnAfiliado = 'Documento'"_s);
    BaseDatos.execute(
        u"UPDATE CamposImport SET PosicionInicial = 80 where CampoEnAfiliado = 'Es turista o esporadico'"_s);
    BaseDatos.execute(u"INSERT INTO CamposImport VALUES ('No hay', 1, 5, FALSE)"_s);
    const QString full = line("B1", "Uno", "M19900315");
    const QString file = write({
        full + longDocument,                                         // cut to its column
        u""_s,                                                       // no key
        line("", "Sin Clave", "M19900315"),                          // no key
        u"B2"_s,                                                     // short: empty fields
        line("B3", "Turista", "F19900315").leftJustified(79) + u'?', // neither yes nor no
        line("B4", "D'Angelo", "F19900315"),
        line("b4", "D'Angelo", "F19900315"), // the same, as texts compare
    });
    const afiliados::Resumen summary = take(file);
    EXPECT_EQ(summary.lineas, 7);
    EXPECT_EQ(summary.nuevos, 3);
    EXPECT_EQ(summary.cantidadDeSalteadas(), 3);
    EXPECT_EQ(summary.recortados, 1);
    EXPECT_EQ(summary.desconocidas, QStringList{u"No hay"_s});
    EXPECT_EQ(summary.salteadas.at(u"sin clave («Numero de Afiliado»)"_s).lineas, 2);
    EXPECT_EQ(summary.salteadas.at(u"«Es turista o esporadico» no es un sí o un no"_s).primera, 5);
    EXPECT_EQ(one(u"Select Documento from Pacientes where [Numero de Afiliado] = 'B1'"_s), QString(30, u'9'));
    QFile skipped(summary.archivoDeSalteadas);
    ASSERT_TRUE(skipped.open(QIODevice::ReadOnly));
    EXPECT_EQ(skipped.readAll().count('\n'), 3);
}

TEST_F(RollTest, theKeyMayBeTheNumberAndAPatientKeepsTheirs)
{
    run({"UPDATE CamposImport SET CampoIndex = FALSE",
         "UPDATE CamposImport SET CampoEnAfiliado = 'Numero', CampoIndex = TRUE where PosicionInicial = 1 and "
         "CampoEnAfiliado <> 'Obra Social'"});
    const QString file =
        write({line("0000000007", "Conocido", "M"), line("500", "Nuevo", "M"), line("12x", "Mal", "M")});
    EXPECT_EQ(take(file).nuevos, 1);
    const afiliados::Resumen again = take(file);
    EXPECT_EQ(again.iguales, 2);
    EXPECT_EQ(again.salteadas.begin()->first, u"la clave «Numero» no es un número");
    EXPECT_EQ(column(u"Select Numero from Pacientes order by Numero"_s), (QStringList{"7", "500"}));

    run({"UPDATE CamposImport SET CampoIndex = FALSE",
         "UPDATE CamposImport SET CampoIndex = TRUE where CampoEnAfiliado = 'Apellido y Nombres'"});
    EXPECT_EQ(take(write({line("900", "Conocido", "F")})).modificados, 1);
    EXPECT_EQ(one(u"Select Numero from Pacientes where Sexo = 'Mujer'"_s), u"7");
}

TEST_F(RollTest, whatIsWrittenStaysWhenItIsStopped)
{
    QStringList lines;
    for (int i = 0; i < 3000; ++i)
        lines += line(qPrintable(u"K%1"_s.arg(i)), "Alguien", "M");
    const afiliados::Resumen summary =
        afiliados::actualizar({u"Mutual"_s, write(lines), false}, afiliados::leerMapa(),
                              [](qint64 done, qint64) { return done < 100; });
    EXPECT_TRUE(summary.detenido);
    EXPECT_LT(summary.lineas, 3000);
    EXPECT_EQ(one(u"Select count(*) from Pacientes"_s), QString::number(summary.nuevos + 1));
}

TEST_F(RollTest, unattendedItWorksOrLeavesWhyNotInTheEvents)
{
    const auto answer = [] {
        panImportAfiliados window;
        window.setTag(u"AUTO"_s);
        window.showModal();
        return window.tag();
    };
    EXPECT_EQ(answer(), u"NO");
    EXPECT_EQ(one(u"Select Suceso from Eventos where Proceso = 'ImportarAfiliados'"_s),
              u"Ingrese la mutual u Obra Social correspondiente!");
    run({"INSERT INTO [Obra Social] (Descripcion) VALUES ('Mutual d''Oro')", "Delete * from Eventos",
         "DROP INDEX idProfesional ON Pacientes", "ALTER TABLE Pacientes DROP COLUMN idProfesional"});
    settings::saveSetting(u"Miscelaneas"_s, u"OBRASOCIAL"_s, u"Mutual d'Oro"_s);
    settings::saveSetting(u"Miscelaneas"_s, u"RutaArchivoTXTImportar"_s, write({line("Z1", "Zeta", "M")}));
    EXPECT_EQ(answer(), u"SI"); // an old file has no such column
    EXPECT_EQ(one(u"Select [Obra Social] from Pacientes where [Numero de Afiliado] = 'Z1'"_s),
              u"Mutual d'Oro");
    run({"Delete * from CamposImport"});
    EXPECT_EQ(answer(), u"NO");
    EXPECT_EQ(column(u"Select Suceso from Eventos where Proceso = 'ImportarAfiliados' order by Suceso"_s),
              (QStringList{u"1 nuevos, 0 modificados, 0 salteadas"_s,
                           u"Error, la tabla de esquemas no está configurada !"_s}));
}
