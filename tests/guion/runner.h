#pragma once

#include "guion/program.h"
#include "guion/script.h"
#include "guion/steps.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>

#include <vector>

namespace guion
{

/// Runs one script inside the program's process: each step from the event loop once the program rests.
class Runner : public QObject, private Stage
{
    Q_OBJECT
public:
    /// `record` is kept up to date with what passed, what failed and the line being run, so that it speaks
    /// even when the program crashes.
    Runner(QString file, std::vector<Step> steps, Program &program, const QString &record);

    /// Turns the event loop until the last step is done; the exit status.
    int run();

private:
    Program &program() override { return program_; }
    bool started() const override { return started_; }
    bool ended() const override { return ended_; }
    void start(const QString &word) override;
    void pause(int milliseconds) override;

    void next(int milliseconds = 1);
    void tick();
    bool startUpGoesOn();
    bool waitFor(const Failure &failure);
    void runStep(const Step &step, const Command &command);
    void prepare(const Step &step, const Command &command, Deed &deed);
    void fail(const Step &step, const Failure &failure);
    void checkEnd();
    void writeRecord(int line);
    void finish();

    const QString file_;
    const std::vector<Step> steps_;
    Program &program_;
    QFile record_;
    std::size_t place_ = 0;
    QElapsedTimer waiting_; ///< since the step at hand was first tried
    QElapsedTimer sinceStart_;
    int pause_ = 1; ///< before the next step, in milliseconds
    int passed_ = 0;
    int failed_ = 0;
    bool resting_ = false; ///< the innermost event loop is one that waits
    bool starting_ = false;
    bool started_ = false;
    bool ended_ = false;
    bool stopped_ = false; ///< an act failed: what follows makes no sense
    bool finished_ = false;
};

} // namespace guion
