#include "answers.h"
#include "delivered.h"

#include "core/maintenance/compacta.h"
#include "core/maintenance/copiaPrevia.h"
#include "core/maintenance/copias.h"
#include "core/maintenance/panErrorBase.h"
#include "core/maintenance/proteccion.h"
#include "core/maintenance/restauracion.h"
#include "core/session/ending.h"
#include "core/windows/Vademecum.h"
#include "platform/basic/errors.h"
#include "platform/cipher/cipher.h"
#include "platform/forms/controls.h"
#include "platform/settings/settings.h"

#include <QDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

bool todo(const QString &, qint64, qint64)
{
    return true;
}

class MantenimientoTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        qputenv("SANIRELL_CARPETA", folder.path().toUtf8());
        run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (7, 'Ñáñez')"});
    }
    void TearDown() override
    {
        qunsetenv("SANIRELL_CARPETA");
        DeliveredBase::TearDown();
    }

    QString en(const QString &archivo) const { return folder.filePath(archivo); }
    QStringList archivos(const QString &filtro) const
    {
        return QDir(folder.path()).entryList({filtro}, QDir::Files);
    }
    void escribir(const QString &archivo, const QByteArray &bytes) const
    {
        QFile nuevo(en(archivo));
        ASSERT_TRUE(nuevo.open(QIODevice::WriteOnly));
        nuevo.write(bytes);
    }
    void danar() const
    {
        QFile base(en(u"BASE.MDB"_s));
        ASSERT_TRUE(base.open(QIODevice::ReadWrite));
        base.seek(base.size() / 8192 * 4096 + 100);
        base.write(QByteArray(64, 'Z'));
    }
    bool tieneAlPaciente(const QString &archivo) const
    {
        dao::Database base;
        base.open(en(archivo), false, true, MODULE11::conexionDeLaBase());
        return base.check().isEmpty() &&
               !base.openRecordset(u"Select * from Pacientes where Numero = 7"_s).eof();
    }
    respaldo::Destino aqui() const
    {
        respaldo::Destino destino;
        destino.carpeta = folder.path();
        return destino;
    }
    QString compactar() const
    {
        return compacta::actualizar(folder.path(), MODULE11::conexionDeLaBase(), todo);
    }

    /// While it lives another station has the file open, and does nothing with it.
    class OtraEstacion
    {
    public:
        explicit OtraEstacion(const QString &archivo)
        {
            int lista[2];
            [[maybe_unused]] const int hecho = pipe(lista);
            hijo_ = fork();
            if (hijo_ == 0) {
                dao::Database base;
                base.open(archivo, false, false, MODULE11::conexionDeLaBase());
                [[maybe_unused]] const auto dicho = ::write(lista[1], "x", 1);
                pause();
                _exit(0);
            }
            char seña = 0;
            [[maybe_unused]] const auto oido = ::read(lista[0], &seña, 1);
            ::close(lista[0]);
            ::close(lista[1]);
        }
        ~OtraEstacion()
        {
            kill(hijo_, SIGKILL);
            waitpid(hijo_, nullptr, 0);
        }
        OtraEstacion(const OtraEstacion &) = delete;
        OtraEstacion &operator=(const OtraEstacion &) = delete;

    private:
        pid_t hijo_;
    };
};

} // namespace

TEST(Cipher, aTextComesBackUnderItsKeyAndNotWhenItWasTouched)
{
    for (const QString &texto : {u""_s, u"qTzR8mvW2"_s, u"Ñandú 'x' €"_s}) {
        const QString cifrado = proteccion::EncriptaClave(texto);
        EXPECT_NE(cifrado, proteccion::EncriptaClave(texto)) << "no two look alike";
        EXPECT_EQ(proteccion::DesencriptaClave(cifrado), texto);
        EXPECT_FALSE(cipher::decryptString(u"otra"_s, cifrado));
        for (qsizetype i = 0; i < cifrado.size(); i += 5) {
            QString tocado = cifrado;
            tocado[i] = tocado[i] == u'A' ? u'B' : u'A';
            EXPECT_FALSE(proteccion::DesencriptaClave(tocado)) << i;
        }
    }
    EXPECT_FALSE(proteccion::DesencriptaClave(u"esto no es nada"_s));
    EXPECT_FALSE(proteccion::DesencriptaClave(QString()));
}

TEST_F(MantenimientoTest, onlyOwnCopiesBeyondTheNumberGo)
{
    for (const char *nombre :
         {"2024_03_01_100000.MDB", "2024_03_02_100000.MDB", "2030_01_01_000000.MDB", "2024_13_01_100000.MDB",
          "2024_03_01.MDB", "mi copia.MDB", "2024_03_01_100000.MDB.txt", "2024_03_01_100000.MDB.parcial"})
        escribir(QString::fromLatin1(nombre), "x");
    QFile cortada(en(u"2024_03_01_100000.MDB.parcial"_s)); // of a station that died days ago
    ASSERT_TRUE(cortada.open(QIODevice::ReadWrite));
    ASSERT_TRUE(cortada.setFileTime({QDate(2024, 3, 1), QTime(10, 0)}, QFileDevice::FileModificationTime));
    cortada.close();
    respaldo::Destino destino = aqui();
    destino.conservar = 2;
    const QDateTime momento(QDate(2024, 3, 5), QTime(9, 7, 6));
    // A copy that cannot be made takes none away.
    EXPECT_THROW(
        respaldo::respaldar(destino, en(u"no hay.MDB"_s), MODULE11::conexionDeLaBase(), momento, todo),
        basic::Error);
    EXPECT_EQ(respaldo::copiasEn(folder.path()).size(), 3);
    // The new one stays, also where the clock of another day wrote later names.
    destino.segunda = en(u"no hay"_s);
    const auto hecha =
        respaldo::respaldar(destino, en(u"BASE.MDB"_s), MODULE11::conexionDeLaBase(), momento, todo);
    ASSERT_TRUE(hecha);
    EXPECT_FALSE(hecha->fallaDeLaSegunda.isEmpty());
    EXPECT_EQ(respaldo::copiasEn(folder.path()),
              (QStringList{u"2030_01_01_000000.MDB"_s, u"2024_03_05_090706.MDB"_s}));
    EXPECT_EQ(archivos(u"*.MDB*"_s).filter(u"2024_"_s).size(), 4) << "what is not ours stays";
    EXPECT_TRUE(tieneAlPaciente(u"2024_03_05_090706.MDB"_s));
}

TEST_F(MantenimientoTest, theReminderCountsDaysOfTheNewestCopy)
{
    const QDateTime hoy(QDate(2024, 3, 15), QTime(8, 0));
    respaldo::Destino destino;
    EXPECT_EQ(respaldo::aviso(destino, hoy), QString()) << "nobody chose a folder";
    destino.carpeta = en(u"no hay"_s);
    EXPECT_TRUE(respaldo::aviso(destino, hoy).startsWith(u"No se encuentra"_s));
    destino.carpeta = folder.path();
    EXPECT_TRUE(respaldo::aviso(destino, hoy).startsWith(u"Todavía no hay"_s));
    escribir(u"2024_03_08_235959.MDB"_s, "x");
    EXPECT_EQ(respaldo::aviso(destino, hoy),
              u"Hace 7 días que no se hace una copia de seguridad: la última es del 08/03/2024."_s);
    QDir(folder.path()).mkdir(u"segunda"_s);
    escribir(u"segunda/2024_03_09_000000.MDB"_s, "x");
    destino.segunda = en(u"segunda"_s);
    EXPECT_EQ(respaldo::aviso(destino, hoy), QString());
    destino.segunda.clear();
    destino.diasDeAviso = 0;
    EXPECT_EQ(respaldo::aviso(destino, hoy), QString());
}

TEST_F(MantenimientoTest, whileAnotherStationHasTheFileOpenItIsNotReplaced)
{
    MODULE11::BaseDatos.close();
    const OtraEstacion otra(en(u"BASE.MDB"_s));
    respaldo::respaldar(aqui(), en(u"BASE.MDB"_s), MODULE11::conexionDeLaBase(),
                        {QDate(2024, 3, 5), QTime(9, 0)}, todo);
    const auto error = [](const std::function<void()> &obra) {
        try {
            obra();
            return 0;
        } catch (const basic::Error &falla) {
            return falla.number();
        }
    };
    EXPECT_EQ(error([&] {
                  restauracion::restaurar(en(u"2024_03_05_090000.MDB"_s), folder.path(), u"BASE_1.aparte"_s,
                                          MODULE11::conexionDeLaBase(), todo);
              }),
              dao::Error::Locked);
    EXPECT_EQ(error([&] { dao::repairDatabase(en(u"BASE.MDB"_s), MODULE11::conexionDeLaBase()); }),
              dao::Error::Locked);
    EXPECT_TRUE(
        compactar().startsWith(u"No se puede copiar el achivo BASE.MDB a BASE.BAK, puede estar siendo "
                               u"utilizado por otra terminal"_s));
    EXPECT_EQ(
        proteccion::proteger(folder.path(), u"qTzR8mvW2"_s, u"x"_s, todo),
        u"Error al intentar crear la nueva base de datos protegida, no se podrá establecer la contraseña !"_s);
    EXPECT_TRUE(archivos(u"*.aparte"_s).isEmpty());
    EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
}

TEST_F(MantenimientoTest, protectingLeavesTheFilesThatAreTold)
{
    MODULE11::BaseDatos.close();
    escribir(u"COMPACTA.MDB"_s, "vieja");
    escribir(u"BACKUP.MDB"_s, "viejo");
    EXPECT_EQ(proteccion::proteger(folder.path(), u"qTzR8mvW2"_s, u"otra"_s, todo), QString());
    EXPECT_TRUE(tieneAlPaciente(u"BACKUP.MDB"_s));
    for (const QString &archivo : {u"BASE.MDB"_s, u"COMPACTA.MDB"_s}) {
        EXPECT_THROW(tieneAlPaciente(archivo), dao::Error)
            << "kept as told: the program's own word opens it no more";
        dao::Database base;
        base.open(en(archivo), false, true, u";pwd=otra"_s);
        EXPECT_EQ(base.openRecordset(u"Select count(*) from Pacientes"_s)[0].integer(), 1);
    }
    // What cannot be deleted stops it there.
    QFile::remove(en(u"BACKUP.MDB"_s));
    QDir(folder.path()).mkpath(u"BACKUP.MDB/lleno"_s);
    EXPECT_EQ(
        proteccion::proteger(folder.path(), u"otra"_s, u"qTzR8mvW2"_s, todo),
        u"Error al intentar eliminar la anterior base de datos de Backup, no se podrá establecer la contraseña !"_s);
    EXPECT_FALSE(QFile::exists(en(u"COMPACTA.MDB"_s)));
}

TEST_F(MantenimientoTest, verifyingCompactsInPlaceMendsWhatIsDamagedAndGoesBack)
{
    Vademecum principal;
    principal.VerificaBase();
    EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
    EXPECT_TRUE(tieneAlPaciente(u"BASE.BAK"_s));
    EXPECT_TRUE(tieneAlPaciente(u"COMPACTA.MDB"_s));

    danar();
    principal.VerificaBase();
    EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
    EXPECT_EQ(archivos(u"BASE.MDB.dañada"_s).size(), 1);

    ASSERT_TRUE(QFile::remove(en(u"BASE.BAK"_s)));
    QDir(folder.path()).mkpath(u"BASE.BAK/lleno"_s);
    {
        Answers respuestas({u"Aceptar"_s});
        principal.VerificaBase();
        EXPECT_TRUE(respuestas.last().startsWith(u"No se puede copiar el achivo BASE.MDB a BASE.BAK"_s));
    }
    QDir(en(u"BASE.BAK"_s)).removeRecursively();

    ASSERT_TRUE(QFile::rename(en(u"BASE.MDB"_s), en(u"BASE.BAK"_s)));
    {
        Answers respuestas({u"Aceptar"_s, u"No"_s, u"Aceptar"_s});
        principal.VerificaBase();
        EXPECT_EQ(respuestas.last(),
                  u"Deberá contactarse con el servicio técnico de Torvendo! para mas información"_s);
        EXPECT_FALSE(QFile::exists(en(u"BASE.MDB"_s)));
    }
    Answers respuestas({u"Aceptar"_s, u"Sí"_s});
    principal.VerificaBase();
    EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
}

TEST_F(MantenimientoTest, theRepairingWindowStaysAndTellsWhatCameOfIt)
{
    MODULE11::BaseDatos.close();
    danar();
    panErrorBase ventana;
    ventana.show();
    auto *reparar = ventana.findChild<forms::CommandButton *>(u"Command1"_s);
    {
        Answers respuestas({u"Aceptar"_s});
        reparar->click();
        EXPECT_EQ(respuestas.last(), u"Proceso de reparado realizado con exito!"_s);
        EXPECT_TRUE(ventana.isVisible());
        EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
    }
    const OtraEstacion otra(en(u"BASE.MDB"_s));
    Answers respuestas({u"Aceptar"_s});
    reparar->click();
    EXPECT_TRUE(respuestas.last().startsWith(u"El sistema no pudo reparar la base de datos 'BASE.MDB'"_s));
}

TEST_F(MantenimientoTest, withoutTheFileTheMainWindowSaysWhatThereIsToGoBackTo)
{
    MODULE11::BaseDatos.close();
    ASSERT_TRUE(QFile::rename(en(u"BASE.MDB"_s), en(u"BACKUP.MDB"_s)));
    QFile::remove(en(u"BASE.MDB.cola"_s));
    EXPECT_TRUE(restauracion::queHacer(folder.path()).contains(u"BACKUP.MDB ("_s));
    Vademecum principal;
    principal.show();
    QCoreApplication::processEvents();
    auto *aviso = principal.findChild<forms::Label *>(u"lblAviso"_s);
    EXPECT_TRUE(aviso->isVisible());
    EXPECT_TRUE(aviso->caption().startsWith(u"No está el archivo BASE.MDB"_s));
    ASSERT_TRUE(restauracion::restaurar(en(u"BACKUP.MDB"_s), folder.path(), u"BASE_1.aparte"_s,
                                        MODULE11::conexionDeLaBase(), todo));
    EXPECT_TRUE(tieneAlPaciente(u"BASE.MDB"_s));
    EXPECT_TRUE(archivos(u"*.aparte"_s).isEmpty()) << "there was nothing to keep aside";
}

TEST_F(MantenimientoTest, aCopyIsOfferedAndTheBaseStaysOpen)
{
    EXPECT_FALSE(CopiaPrevia(u"Check1"_s).isChecked()) << "no folder was ever chosen";
    respaldo::recordar(aqui());
    CopiaPrevia copia(u"Check1"_s);
    EXPECT_TRUE(copia.isChecked());
    const auto hacer = [&](const QStringList &captions) {
        Answers respuestas(captions);
        return copia.hacer();
    };
    copia.setChecked(false);
    EXPECT_TRUE(hacer({}));
    EXPECT_TRUE(respaldo::copiasEn(folder.path()).isEmpty());
    copia.setChecked(true);
    EXPECT_TRUE(hacer({}));
    EXPECT_EQ(respaldo::copiasEn(folder.path()).size(), 1);
    run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (8, 'O''Higgins')"});
    respaldo::Destino lejos = aqui();
    lejos.carpeta = en(u"no hay"_s);
    respaldo::recordar(lejos);
    EXPECT_FALSE(hacer({u"Aceptar"_s, u"No"_s}));
    EXPECT_TRUE(hacer({u"Aceptar"_s, u"Sí"_s}));
}
