#include "platform/shell/shell.h"

#include <QTemporaryDir>

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
