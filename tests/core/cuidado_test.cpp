#include "delivered.h"
#include "dyingdisk.h"

#include "core/maintenance/compacta.h"
#include "core/maintenance/copias.h"
#include "core/maintenance/proteccion.h"
#include "core/maintenance/restauracion.h"
#include "platform/basic/errors.h"

#include <QDir>

#include <set>

using namespace Qt::StringLiterals;

namespace
{

const QString propia = u"qTzR8mvW2"_s, otra = u"otra"_s;
constexpr int lugares = 10;
const QString lugar =
    (QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm"_s : QDir::tempPath()) + u"/cuidado-XXXXXX"_s;

bool todo(const QString &, qint64, qint64)
{
    return true;
}

/// A practice of one patient in a folder, and one piece of work on its file as a whole.
struct Obra {
    const char *nombre;
    std::function<void(const QDir &)> preparar;
    std::function<void(const QDir &)> hacer;
};

std::ostream &operator<<(std::ostream &out, const Obra &obra)
{
    return out << obra.nombre;
}

void danar(const QDir &ahi)
{
    QFile base(ahi.filePath(u"BASE.MDB"_s));
    ASSERT_TRUE(base.open(QIODevice::ReadWrite));
    base.seek(base.size() / 8192 * 4096 + 100);
    base.write(QByteArray(64, 'Z'));
}

void hacerCopia(const QDir &ahi)
{
    QFile::copy(ahi.filePath(u"BASE.MDB"_s), ahi.filePath(u"2024_03_01_100000.MDB"_s));
}

void proteger(const QDir &ahi, const QString &anterior, const QString &nueva)
{
    const QString fallo = proteccion::proteger(ahi.path(), anterior, nueva, todo);
    if (!fallo.isEmpty())
        throw basic::Error(1, fallo);
}

void compactar(const QDir &ahi)
{
    compacta::actualizar(ahi.path(), MODULE11::conexionDeLaBase(), todo);
}

void reparar(const QDir &ahi)
{
    dao::repairDatabase(ahi.filePath(u"BASE.MDB"_s), MODULE11::conexionDeLaBase());
}

const Obra obras[] = {
    {"backup", [](const QDir &) {},
     [](const QDir &ahi) {
         respaldo::Destino destino;
         destino.carpeta = ahi.path();
         ahi.mkpath(u"segunda"_s);
         destino.segunda = ahi.filePath(u"segunda"_s);
         respaldo::respaldar(destino, ahi.filePath(u"BASE.MDB"_s), MODULE11::conexionDeLaBase(),
                             {QDate(2024, 3, 5), QTime(9, 0)}, todo);
     }},
    {"protect", [](const QDir &) {}, [](const QDir &ahi) { proteger(ahi, propia, otra); }},
    {"unprotect", [](const QDir &ahi) { proteger(ahi, propia, otra); },
     [](const QDir &ahi) { proteger(ahi, otra, propia); }},
    {"compact", [](const QDir &) {}, compactar},
    {"repair", danar, reparar},
    {"restore", hacerCopia,
     [](const QDir &ahi) {
         restauracion::restaurar(ahi.filePath(u"2024_03_01_100000.MDB"_s), ahi.path(), u"BASE_1.aparte"_s,
                                 MODULE11::conexionDeLaBase(), todo);
     }},
};

QByteArray contenido(const QString &archivo)
{
    QFile base(archivo);
    return base.open(QIODevice::ReadOnly) ? base.readAll() : QByteArray();
}

/// Leaves the file as a station does that dies in the midst of its writing: half of it done, and a journal
/// that says so by its first byte.
bool dejarAMedias(const QDir &ahi)
{
    const QString archivo = ahi.filePath(u"BASE.MDB"_s), diario = archivo + u"-journal"_s;
    const auto escribir = [&archivo] {
        dao::Database base;
        base.open(archivo, false, false, MODULE11::conexionDeLaBase());
        base.execute(u"UPDATE Sintomas SET Descripcion = 'a medias ' & Descripcion"_s);
    };
    const QByteArray antes = contenido(QStringLiteral(UPGRADED_BASE));
    for (long cambio = 1;; ++cambio) {
        for (const QString &resto : {archivo, diario})
            QFile::remove(resto);
        QFile::copy(QStringLiteral(UPGRADED_BASE), archivo);
        if (!dyingdisk::killedBefore(cambio, escribir))
            return false;
        const QByteArray escrito = contenido(diario);
        if (!escrito.isEmpty() && escrito[0] != '\0' && contenido(archivo) != antes)
            return true;
    }
}

class CuidadoTest : public testing::TestWithParam<Obra>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QFile::copy(QStringLiteral(UPGRADED_BASE), lista.filePath(u"BASE.MDB"_s)));
        dao::Database base;
        base.open(lista.filePath(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
        base.execute(u"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (7, 'Ñáñez')"_s);
        base.close();
        GetParam().preparar(QDir(lista.path()));
        comienzo_ = contenido(lista.filePath(u"BASE.MDB"_s));
    }

    /// A folder as it was before the work.
    std::unique_ptr<QTemporaryDir> carpeta() const
    {
        auto nueva = std::make_unique<QTemporaryDir>(lugar);
        for (const QString &archivo : QDir(lista.path()).entryList(QDir::Files))
            QFile::copy(lista.filePath(archivo), nueva->filePath(archivo));
        return nueva;
    }

    /// The practice's file is as it was, or is whole and new; and so is what stands under a copy's name.
    void esperarEntera(const QDir &ahi)
    {
        EXPECT_TRUE(ahi.exists(u"BASE.MDB"_s));
        QList<QByteArray> sanas{comienzo_}; // deriving a key takes longer than reading a file twice
        for (const QString &nombre : ahi.entryList({u"*.MDB"_s, u"*.BAK"_s}, QDir::Files)) {
            const QByteArray bytes = contenido(ahi.filePath(nombre));
            EXPECT_TRUE(sanas.contains(bytes) || entera(ahi.filePath(nombre))) << nombre.toStdString();
            sanas += bytes;
        }
    }

    static bool entera(const QString &archivo)
    {
        for (const QString &clave : {propia, otra}) {
            dao::Database base;
            const bool abre = basic::ignoring({dao::Error::WrongPassword},
                                              [&] { base.open(archivo, false, false, u";pwd="_s + clave); });
            if (abre)
                return base.check().isEmpty() &&
                       base.openRecordset(u"Select [Apellido y Nombres] from Pacientes where Numero = 7"_s)[0]
                               .text() == u"Ñáñez";
        }
        return false;
    }

    QTemporaryDir lista{lugar};

private:
    QByteArray comienzo_;
};

} // namespace

TEST(CuidadoDelDiario, whatWasLeftHalfWrittenIsTakenBackBeforeTheFileIsMendedOrCompacted)
{
    for (const auto &trabajo : {compactar, reparar}) {
        const QTemporaryDir carpeta(lugar);
        const QDir ahi(carpeta.path());
        ASSERT_TRUE(dejarAMedias(ahi));
        trabajo(ahi);
        dao::Database base;
        base.open(ahi.filePath(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
        EXPECT_TRUE(base.check().isEmpty());
        EXPECT_EQ(base.openRecordset(u"Select count(*) from Sintomas where Descripcion like 'a medias*'"_s)[0]
                      .integer(),
                  0);
        EXPECT_GT(base.openRecordset(u"Select count(*) from Sintomas"_s)[0].integer(), 0);
    }
}

TEST_P(CuidadoTest, killedAtAnyPlaceLeavesThePracticeWholeAndCanBeDoneAgain)
{
    const auto medida = carpeta();
    const auto obra = [](const QDir &ahi) { return [ahi] { GetParam().hacer(ahi); }; };
    const dyingdisk::Use use = dyingdisk::measure(obra(QDir(medida->path())));
    esperarEntera(QDir(medida->path()));
    std::set<long> antesDe(use.naming.begin(),
                           use.naming.begin() + use.names); // where files change their names
    for (int i = 1; i <= lugares; ++i)
        antesDe.insert(std::max(1L, use.changes * i / lugares));
    for (const long cambio : antesDe) {
        SCOPED_TRACE(cambio);
        const auto otraVez = carpeta();
        const QDir ahi(otraVez->path());
        EXPECT_TRUE(dyingdisk::killedBefore(cambio, obra(ahi)));
        esperarEntera(ahi);
        if (cambio == use.changes) {
            EXPECT_TRUE(dyingdisk::withRoomFor(std::numeric_limits<long>::max(), obra(ahi)));
            esperarEntera(ahi);
        }
    }
}

TEST_P(CuidadoTest, aDiskThatIsFullAtAnyStageLeavesThePracticeWholeAndNothingHalfWritten)
{
    const auto medida = carpeta();
    const auto obra = [](const QDir &ahi) { return [ahi] { GetParam().hacer(ahi); }; };
    const dyingdisk::Use use = dyingdisk::measure(obra(QDir(medida->path())));
    for (int i = 0; i < lugares; ++i) {
        SCOPED_TRACE(i);
        const auto otraVez = carpeta();
        const QDir ahi(otraVez->path());
        EXPECT_TRUE(dyingdisk::withRoomFor(use.bytes * i / lugares, obra(ahi)));
        esperarEntera(ahi);
        EXPECT_EQ(ahi.entryList({u"*.parcial"_s, u"*.tmp"_s, u"*.nueva"_s}), QStringList());
    }
}

INSTANTIATE_TEST_SUITE_P(Obras, CuidadoTest, testing::ValuesIn(obras),
                         [](const auto &una) { return std::string(una.param.nombre); });
