#include "guion/program.h"
#include "screens.h"

#include "platform/dao/database.h"
#include "platform/forms/boxes.h"
#include "platform/settings/settings.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace
{

class SelfTest : public guion::Program
{
public:
    void deliver(const QString &folder, bool withDatabase) override
    {
        QFile note(QDir(folder).filePath(u"nota.txt"_s));
        if (note.open(QIODevice::WriteOnly))
            note.write("señal\n");
        QDir(folder).mkpath(u"ayuda"_s);
        if (!withDatabase)
            return;
        dao::Database database;
        database.create(QDir(folder).filePath(databaseFile()), connect());
        database.execute(
            u"CREATE TABLE Articulos (id COUNTER, Nombre TEXT(60), Precio CURRENCY, Facturada BIT, Alta DATE)"_s);
    }

    bool start(const QString &word) override
    {
        selftest::portada().showModal();
        settings::saveSetting(u"Ruta"_s, u"Palabra"_s, word);
        if (word == u"NADA"_s)
            return false;
        if (word == u"AVISA"_s)
            forms::msgBox(u"Bienvenido"_s, forms::Icon::Information, settings::applicationTitle());
        window_ = std::make_unique<selftest::Principal>();
        window_->show();
        return true;
    }

    QString splash() const override { return u"portada"_s; }
    QString databaseFile() const override { return u"BASE.MDB"_s; }
    QString connect() const override { return u";PWD=prueba"_s; }

private:
    std::unique_ptr<selftest::Principal> window_;
};

} // namespace

int main(int argc, char **argv)
{
    return guion::runMain(argc, argv, [] { return std::make_unique<SelfTest>(); });
}
