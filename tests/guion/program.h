#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace guion
{

/// The program that the scripts drive, as far as the runner must know it.
class Program
{
public:
    virtual ~Program() = default;

    /// Fills an empty folder with what the installation delivers.
    virtual void deliver(const QString &folder, bool withDatabase) = 0;
    /// The start-up procedure with a word of the command line, as main() runs it once the event loop turns.
    /// True when the program goes on and waits for the person, false when it has ended. What it keeps alive
    /// is let go with this object.
    virtual bool start(const QString &word) = 0;
    /// The objectName of the window that start-up shows until it is clicked.
    virtual QString splash() const = 0;
    /// The database within the program's folder, and its connect string.
    virtual QString databaseFile() const = 0;
    virtual QString connect() const = 0;
};

/// Copies a folder of delivered files; pictures, which the program only reads, become links.
void copyDelivered(const QString &source, const QString &target);

/// Makes the program once there is an application object.
using ProgramFactory = std::function<std::unique_ptr<Program>()>;

/// The command line: `guion FILE.guion [FILE.guion ...]`. Each file runs in a process of its own.
int runMain(int argc, char **argv, const ProgramFactory &makeProgram);

} // namespace guion
