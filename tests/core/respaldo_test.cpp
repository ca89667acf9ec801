#include "delivered.h"

#include "core/maintenance/respaldo.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class RespaldoTest : public DeliveredBase
{
protected:
    static bool todo(const QString &, qint64, qint64) { return true; }
    QString origen() const { return folder.filePath(u"BASE.MDB"_s); }
    QString destino() const
    {
        return carpeta.filePath(respaldo::nombre({QDate(2024, 3, 5), QTime(9, 7, 6)}));
    }
    QStringList quedan() const { return QDir(carpeta.path()).entryList(QDir::Files); }

    QTemporaryDir carpeta;
};

TEST_F(RespaldoTest, theCopyIsWholeAndCarriesItsMoment)
{
    run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (7, 'D''Angelo')"});
    ASSERT_TRUE(respaldo::copiar(origen(), destino(), MODULE11::conexionDeLaBase(), todo));
    EXPECT_EQ(quedan(), QStringList{u"2024_03_05_090706.MDB"_s});
    dao::Database copia;
    copia.open(destino(), false, true, MODULE11::conexionDeLaBase());
    EXPECT_EQ(copia.openRecordset(u"Select [Apellido y Nombres] from Pacientes"_s)[0].text(), u"D'Angelo"_s);
    // A second one in the same second takes its place.
    copia.close();
    QFile::remove(destino() + u".cola"_s);
    EXPECT_TRUE(respaldo::copiar(origen(), destino(), MODULE11::conexionDeLaBase(), todo));
    EXPECT_EQ(quedan().size(), 1);
}

TEST_F(RespaldoTest, whatIsStoppedOrFailsLeavesNothingAndTheOldCopy)
{
    ASSERT_TRUE(respaldo::copiar(origen(), destino(), MODULE11::conexionDeLaBase(), todo));
    EXPECT_FALSE(respaldo::copiar(origen(), destino(), MODULE11::conexionDeLaBase(),
                                  [](const QString &, qint64, qint64) { return false; }));
    EXPECT_EQ(quedan(), QStringList{u"2024_03_05_090706.MDB"_s});
    EXPECT_THROW(
        respaldo::copiar(origen(), carpeta.filePath(u"no hay/x.MDB"_s), MODULE11::conexionDeLaBase(), todo),
        basic::Error);
    // A damaged file is no backup of anything.
    MODULE11::BaseDatos.close();
    QFile base(origen());
    ASSERT_TRUE(base.open(QIODevice::ReadWrite));
    base.seek(base.size() / 2);
    base.write(QByteArray(8192, 'x'));
    base.close();
    const QString otro = carpeta.filePath(u"otro.MDB"_s);
    EXPECT_THROW(respaldo::copiar(origen(), otro, MODULE11::conexionDeLaBase(), todo), basic::Error);
    EXPECT_EQ(quedan(), QStringList{u"2024_03_05_090706.MDB"_s});
}
