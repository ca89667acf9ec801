#include "answers.h"
#include "clinical/laboratory/complementos.h"
#include "clinical/laboratory/panComplem.h"
#include "delivered.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace
{

class ComplementosTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        qputenv("SANIRELL_CARPETA", QFile::encodeName(carpeta_.path()));
        run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres], Sexo, [Fecha de Nacimiento]) VALUES (5, "
             "'D''Amico Luz', 'Mujer', cdate('15/03/1984'))",
             "INSERT INTO Complementos (idPaciente, Examen) VALUES (9, 'Holter')"});
    }
    void TearDown() override
    {
        qunsetenv("SANIRELL_CARPETA");
        DeliveredBase::TearDown();
    }

    QString archivo(const QString &nombre, const QByteArray &contenido = "x")
    {
        QDir(carpeta_.path()).mkpath(u"docs"_s);
        QFile nuevo(carpeta_.filePath(nombre));
        EXPECT_TRUE(nuevo.open(QIODevice::WriteOnly));
        nuevo.write(contenido);
        return nuevo.fileName();
    }

    QByteArray informe()
    {
        QFile guardado(carpeta_.filePath(u"docs/5-Holter.RTF"_s));
        EXPECT_TRUE(guardado.open(QIODevice::ReadOnly));
        return guardado.readAll();
    }

    /// What is done in the window of the patient's "Holter" once it is open.
    void enLaVentana(std::function<void(forms::Form &, QTextEdit &)> hacer)
    {
        onceOpen([hacer = std::move(hacer)](forms::Form &ventana) {
            hacer(ventana, *ventana.findChild<QTextEdit *>(u"RT1"_s));
            ventana.unload();
        });
        complementos::abrir(5, u"Holter"_s);
    }

    static void guardar(forms::Form &ventana)
    {
        ventana.findChild<QAbstractButton *>(u"Command1"_s)->click();
    }

    QTemporaryDir carpeta_;
};

} // namespace

TEST_F(ComplementosTest, theRowIsFoundByItsOwnKeyAndKeepsThePicturesThatExist)
{
    const QString foto = archivo(u"foto d'ayer.jpg"_s);
    const basic::Value dia(basic::Date(QDate(2024, 3, 15)));
    complementos::Complemento complemento = complementos::leer(5, u"Eco d'urgencia a/b"_s);
    EXPECT_FALSE(complemento.guardado);
    EXPECT_EQ(complemento.informe, carpeta_.filePath(u"docs/5-Eco d'urgencia a_b.RTF"_s));
    complemento.imagenes = {{foto, dia}, {foto, basic::Null{}}, {u"/no/hay.jpg"_s, dia}};
    for (int vez = 0; vez < 2; ++vez) {
        complementos::guardar(5, u"Eco d'urgencia a/b"_s, complemento);
        run({"INSERT INTO Complementos (idPaciente, Examen) VALUES (5, 'el último')"});
    }
    const complementos::Complemento leido = complementos::leer(5, u"Eco d'urgencia a/b"_s);
    EXPECT_TRUE(leido.guardado);
    EXPECT_EQ(leido.imagenes, (std::vector<complementos::Imagen>{{foto, dia}, {foto, basic::Null{}}}));
    EXPECT_EQ(one(u"Select count(*) from DetalleComplementos"_s), u"2"_s);
    EXPECT_EQ(one(u"Select count(*) from Complementos"_s), u"4"_s);
    EXPECT_TRUE(complementos::leer(9, u"Holter"_s).imagenes.empty());

    complemento.imagenes = {{QString(300, u'x'), dia}};
    EXPECT_THROW(complementos::guardar(5, u"Eco d'urgencia a/b"_s, complemento), basic::Error);
    EXPECT_EQ(one(u"Select count(*) from DetalleComplementos"_s), u"2"_s) << "nothing was changed";
}

TEST_F(ComplementosTest, theDateOfAPictureIsADayOrNone)
{
    const QDate hoy(2024, 3, 15);
    for (const QString &ninguna : {u"xx/xx/xxxx"_s, u" - "_s, u""_s, u"XX/XX/XXXX"_s})
        EXPECT_EQ(complementos::fechaEscrita(ninguna, hoy), basic::Value(basic::Null{}));
    EXPECT_EQ(complementos::fechaEscrita(u"5/2/24"_s, hoy), basic::Value(basic::Date(QDate(2024, 2, 5))));
    EXPECT_FALSE(complementos::fechaEscrita(u"31/02/2024"_s, hoy));
    EXPECT_FALSE(complementos::fechaEscrita(u"ayer"_s, hoy));
}

TEST_F(ComplementosTest, whatIsLostOfAFileIsTold)
{
    archivo(u"docs/5-Holter.RTF"_s, "{\\rtf1 a{\\pict\\wmetafile8 01}b");
    const Answers dos({u"Aceptar"_s, u"Aceptar"_s});
    enLaVentana([](forms::Form &, QTextEdit &texto) { EXPECT_EQ(texto.toPlainText(), u"ab"_s); });
    EXPECT_EQ(
        dos.texts,
        (QStringList{
            u"El archivo del informe está dañado: se muestra lo que se pudo leer. Lo demás se pierde si lo guarda."_s,
            u"El informe tiene imágenes que no se pueden mostrar: 1. Se pierden si lo guarda."_s}));
}

TEST_F(ComplementosTest, anotherStationsReportIsNotReplacedUnasked)
{
    archivo(u"docs/5-Holter.RTF"_s, "{\\rtf1 uno\\par}");
    const Answers respuestas({u"No"_s, u"Sí"_s, u"Sí"_s});
    enLaVentana([this](forms::Form &ventana, QTextEdit &texto) {
        texto.setPlainText(u"mío"_s);
        guardar(ventana);
        archivo(u"docs/5-Holter.RTF"_s, "{\\rtf1 de otra\\par}");
        texto.append(u"más"_s);
        guardar(ventana);
        EXPECT_TRUE(informe().contains("de otra"));
        texto.document()->setModified(true);
    });
    enLaVentana([this](forms::Form &ventana, QTextEdit &texto) {
        EXPECT_EQ(texto.toPlainText(), u"de otra"_s);
        archivo(u"docs/5-Holter.RTF"_s, "{\\rtf1 de otra más\\par}");
        texto.setPlainText(u"mío"_s);
        guardar(ventana);
        EXPECT_FALSE(informe().contains("de otra"));
        guardar(ventana);
    });
    EXPECT_EQ(respuestas.texts[0],
              u"Otra estación guardó este informe mientras usted lo escribía.\n¿Lo reemplaza por el suyo?"_s);
    EXPECT_EQ(respuestas.texts[1], u"Está seguro de salir sin guardar los cambios??"_s);
}

TEST_F(ComplementosTest, aReportThatCannotBeWrittenStaysInTheWindow)
{
    QFile enSuLugar(carpeta_.filePath(u"docs"_s)); // a file where the folder should be
    ASSERT_TRUE(enSuLugar.open(QIODevice::WriteOnly));
    const Answers respuestas({u"Sí"_s});
    enLaVentana([](forms::Form &ventana, QTextEdit &texto) {
        texto.setPlainText(u"mío"_s);
        texto.document()->setModified(true);
        EXPECT_THROW(guardar(ventana), basic::Error);
    });
    EXPECT_EQ(one(u"Select count(*) from Complementos where idPaciente = 5"_s), u"0"_s);
}
