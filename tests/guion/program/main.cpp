// The runner of the scripts over the whole program.
#include "guion/program.h"
#include "guion/script.h"

#include "subsystems.h"

#include "core/session/ending.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "core/windows/Vademecum.h"

#include <QDir>
#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

class Sanirell : public guion::Program
{
public:
    void deliver(const QString &folder, bool withDatabase) override
    {
        guion::copyDelivered(QStringLiteral(DELIVERED), folder);
        const QString base = QDir(folder).filePath(databaseFile());
        QFile::remove(base);
        if (withDatabase && !QFile::copy(QStringLiteral(UPGRADED_BASE), base))
            throw guion::Failure(QStringLiteral("the database cannot be delivered"));
    }

    bool start(const QString &word) override
    {
        app::prepare();
        window_ = MODULE11::iniciar(word);
        return window_ != nullptr;
    }

    QString splash() const override { return u"portada"_s; }
    QString databaseFile() const override { return u"BASE.MDB"_s; }
    QString connect() const override { return MODULE11::conexionDeLaBase(); }

private:
    std::unique_ptr<Vademecum> window_;
};

} // namespace

int main(int argc, char **argv)
{
    return guion::runMain(argc, argv, [] { return std::make_unique<Sanirell>(); });
}
