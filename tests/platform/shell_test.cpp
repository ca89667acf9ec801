#include "platform/shell/shell.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

TEST(Shell, oneInstanceHoldsTheClaimUntilItsProcessEnds)
{
    const QTemporaryDir session;
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", session.path().toUtf8());
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        const char claimed = shell::claimSingleInstance("prueba") ? 'y' : 'n';
        if (write(ready[1], &claimed, 1) == 1)
            pause();
        _exit(0);
    }
    char claimed = 0;
    ASSERT_EQ(read(ready[0], &claimed, 1), 1);
    EXPECT_EQ(claimed, 'y');
    EXPECT_FALSE(shell::claimSingleInstance("prueba"));
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(shell::claimSingleInstance("prueba")); // the dead process left its lock behind
    EXPECT_TRUE(shell::claimSingleInstance("prueba"));
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST(Shell, missingDocumentIsNotOpened)
{
    EXPECT_FALSE(shell::openDocument("/nonexistent/manual.pdf"));
}

TEST(Shell, aMessageGoesToTheMailProgramWithItsFile)
{
    const QTemporaryDir bin;
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", bin.path().toUtf8());
    EXPECT_FALSE(shell::canMail());
    EXPECT_FALSE(shell::mail("ana@correo.ar", "Receta", "/tmp/receta.pdf"));
    QFile program(bin.filePath("xdg-email"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write(
        "#!/bin/sh\nfor word; do echo \"$word\"; done > \"${0%/*}/part\"\n/bin/mv \"${0%/*}/part\" \"${0%/*}/words\"\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    const auto words = [&](const QString &address) {
        EXPECT_TRUE(shell::mail(address, "Receta d'Ana & Co", "/tmp/una receta.pdf"));
        QFile told(bin.filePath("words"));
        for (int i = 0; i < 500 && !told.exists(); ++i)
            QThread::msleep(10);
        EXPECT_TRUE(told.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(told.readAll());
        told.remove();
        return text;
    };
    const QString message = "--utf8\n--subject\nReceta d'Ana & Co\n--attach\n/tmp/una receta.pdf\n";
    EXPECT_EQ(words("ana@correo.ar"), message + "ana@correo.ar\n");
    EXPECT_EQ(words("--attach=@/etc/passwd"), message);
    EXPECT_EQ(words({}), message);
    qputenv("PATH", before);
}
