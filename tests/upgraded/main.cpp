// Makes the file that most tests start from: the delivered one as the first start of the program leaves it.
#include "core/database/actualiza.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/errors.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QString from = application.arguments().value(1);
    const QString to = application.arguments().value(2);
    QFile::remove(to);
    if (!QFile::copy(from, to) || !QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner)) {
        std::fputs("upgraded DELIVERED UPGRADED\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        MODULE11::valoresIniciales();
        MODULE11::BaseDatos.open(to, false, false, MODULE11::conexionDeLaBase());
        MODULE11::ActualizaBase();
        MODULE11::BaseDatos.close();
    } catch (const basic::Error &error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error.description()));
        QFile::remove(to);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
