#include "guion/runner.h"

#include "guion/gestures.h"
#include "guion/windows.h"
#include "platform/basic/errors.h"
#include "platform/forms/controls.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace guion
{

namespace
{

/// How long a step waits for what it is about; the scripts that must fail do not wait so long for it.
int patienceMs()
{
    const int given = qEnvironmentVariableIntValue("GUION_PACIENCIA");
    return given > 0 ? given : 5000;
}
constexpr int startUpPatienceMs = 60000;
constexpr int retryMs = 20;

void say(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

/// The picture of the splash is what a person clicks.
QWidget *splashPicture(QWidget *splash)
{
    for (forms::PictureBox *picture : splash->findChildren<forms::PictureBox *>())
        if (picture->isVisible())
            return picture;
    for (QLabel *label : splash->findChildren<QLabel *>())
        if (label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull())
            return label;
    return splash;
}

} // namespace

Runner::Runner(QString file, std::vector<Step> steps, Program &program, const QString &record)
    : file_(std::move(file)), steps_(std::move(steps)), program_(program), record_(record)
{
    record_.open(QIODevice::WriteOnly);
    // A loop that yields in the middle of a job does not wait; only one that does shows the program at rest.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { resting_ = false; });
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { resting_ = true; });
}

int Runner::run()
{
    next();
    while (!finished_) {
        QCoreApplication::exec();
        if (finished_)
            break;
        ended_ = true;
        starting_ = false;
        next();
    }
    return failed_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void Runner::start(const QString &word)
{
    started_ = true;
    starting_ = true;
    sinceStart_.start();
    const bool goesOn = program_.start(word);
    starting_ = false;
    if (!goesOn)
        ended_ = true;
}

void Runner::pause(int milliseconds)
{
    pause_ = milliseconds;
}

void Runner::next(int milliseconds)
{
    QTimer::singleShot(milliseconds, this, &Runner::tick);
}

/// While start-up runs the splash is clicked away; it is over once something waits for the person.
bool Runner::startUpGoesOn()
{
    if (!starting_ || ended_)
        return false;
    if (QWidget *splash = findWindow({program_.splash(), false, {}})) {
        next(retryMs);
        click(splashPicture(splash), Click::Single);
        return true;
    }
    const bool waitsForPerson = activeWindow() != nullptr;
    if (!waitsForPerson && sinceStart_.elapsed() < startUpPatienceMs) {
        next(retryMs);
        return true;
    }
    starting_ = false;
    return false;
}

void Runner::tick()
{
    if (finished_)
        return;
    if (!resting_) {
        next();
        return;
    }
    if (startUpGoesOn())
        return;
    if (stopped_ || place_ >= steps_.size()) {
        checkEnd();
        finish();
        return;
    }
    const Step &step = steps_[place_];
    const Command *known = command(step.name());
    if (!known) {
        fail(step, Failure(QStringLiteral("there is no step %1").arg(step.name())));
        stopped_ = true;
        next();
        return;
    }
    if (!waiting_.isValid()) {
        waiting_.start();
        writeRecord(step.line);
    }
    runStep(step, *known);
}

void Runner::prepare(const Step &step, const Command &known, Deed &deed)
{
    const auto box = known.kind == Kind::Act ? forms::describeBox(topBox()) : std::nullopt;
    try {
        if ((known.kind == Kind::Act || known.kind == Kind::Answer) && !started_)
            throw Failure(QStringLiteral("the program has not started"));
        deed = known.prepare(*this, step);
    } catch (const Missing &missing) {
        if (!box)
            throw;
        throw Failure(QStringLiteral("a box is open: \"%1\" \"%2\"").arg(box->title, box->text),
                      missing.expected(), missing.actual());
    }
}

/// True when the step is to be tried again: what it is about may still come.
bool Runner::waitFor(const Failure &failure)
{
    if (!dynamic_cast<const Missing *>(&failure) || waiting_.elapsed() >= patienceMs())
        return false;
    next(retryMs);
    return true;
}

void Runner::runStep(const Step &step, const Command &known)
{
    Deed deed;
    try {
        prepare(step, known, deed);
        if (known.kind == Kind::Check)
            ++passed_;
    } catch (const Failure &failure) {
        if (waitFor(failure))
            return;
        fail(step, failure);
        stopped_ = known.kind != Kind::Check;
    }
    ++place_;
    waiting_.invalidate();
    if (known.kind == Kind::Prepare) {
        // Nothing opens here, and the next step counts on its being done.
        try {
            if (deed)
                deed();
        } catch (const Failure &failure) {
            fail(step, failure);
            stopped_ = true;
        } catch (const basic::Error &error) {
            fail(step, Failure(error.description()));
            stopped_ = true;
        }
        next(std::exchange(pause_, 1));
        return;
    }
    next(); // before the deed: a window that it opens runs the loop that the next step comes from
    try {
        if (deed)
            deed();
    } catch (const Failure &failure) {
        fail(step, failure);
        stopped_ = true;
    }
}

void Runner::fail(const Step &step, const Failure &failure)
{
    ++failed_;
    say(QStringLiteral("%1:%2: %3").arg(file_).arg(step.line).arg(step.source));
    say(QStringLiteral("    %1").arg(failure.text()));
    if (!failure.expected().isNull())
        say(QStringLiteral("    expected: %1").arg(failure.expected()));
    if (!failure.actual().isNull())
        say(QStringLiteral("    actual:   %1").arg(failure.actual()));
    say(QStringLiteral("    open:     %1").arg(describeWindows()));
}

void Runner::checkEnd()
{
    const auto box = forms::describeBox(topBox());
    if (stopped_ || !box || steps_.empty())
        return;
    fail(
        steps_.back(),
        Failure(QStringLiteral("the script ends with a box open: \"%1\" \"%2\"").arg(box->title, box->text)));
}

void Runner::writeRecord(int line)
{
    record_.seek(0);
    record_.write(QStringLiteral("%1 %2 %3      \n").arg(passed_).arg(failed_).arg(line).toUtf8());
    record_.flush();
}

void Runner::finish()
{
    finished_ = true;
    writeRecord(0);
    if (ended_ || !started_) {
        QCoreApplication::exit();
        return;
    }
    // Windows that are still open hold their handlers on the stack: the process ends around them.
    std::fflush(nullptr);
    std::_Exit(failed_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace guion

#include "moc_runner.cpp"
