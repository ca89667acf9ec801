#include "guion/program.h"
#include "guion/runner.h"
#include "platform/forms/application.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace guion
{

namespace
{

constexpr char childOption[] = "--uno";
constexpr int hangMs = 180000; // longer than any step may take

struct Result {
    int passed = 0;
    int failed = 0;
    int line = 0; ///< being run, 0 when the script came to its end
};

void say(const QString &line)
{
    std::fputs(qUtf8Printable(line), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

std::vector<Step> read(const QString &file)
{
    QFile script(file);
    if (!script.open(QIODevice::ReadOnly))
        throw Failure(QStringLiteral("%1: %2").arg(file, script.errorString()));
    try {
        return parse(QString::fromUtf8(script.readAll()));
    } catch (const Failure &failure) {
        throw Failure(QStringLiteral("%1:%2").arg(file, failure.text()));
    }
}

Result readRecord(const QString &file)
{
    QFile record(file);
    Result result;
    if (!record.open(QIODevice::ReadOnly))
        return result;
    const QStringList numbers = QString::fromUtf8(record.readAll()).split(u' ', Qt::SkipEmptyParts);
    if (numbers.size() < 3)
        return result;
    return {numbers[0].toInt(), numbers[1].toInt(), numbers[2].trimmed().toInt()};
}

/// The screen of a desk, for the platform plugin that shows nothing. With QT_SCALE_FACTOR it is one of as
/// many dots more, so that the pictures show the same desk finer.
QString screen(const QDir &root)
{
    bool scaled = false;
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&scaled);
    const auto dots = [&](int size) { return QString::number(qRound(scaled ? size * factor : size)); };
    QFile file(root.filePath(QStringLiteral("pantalla.json")));
    if (file.open(QIODevice::WriteOnly))
        file.write(
            QStringLiteral(R"({"screens": [{"name": "escritorio", "x": 0, "y": 0, "width": %1, "height": %2,
                                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                .arg(dots(1366), dots(768))
                .toUtf8());
    return QStringLiteral("offscreen:configfile=") + file.fileName();
}

/// Everything the program writes to lies below one folder of its own.
QProcessEnvironment environmentIn(const QDir &root)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const std::pair<const char *, const char *> folders[] = {
        {"SANIRELL_CARPETA", "programa"},    {"SANIRELL_AJUSTES", "ajustes"},
        {"SANIRELL_IMPRESORA", "impresora"}, {"TMPDIR", "temporal"},
        {"XDG_RUNTIME_DIR", "sesion"},       {"HOME", "usuario"},
    };
    for (const auto &[variable, folder] : folders) {
        root.mkdir(QLatin1String(folder));
        environment.insert(QLatin1String(variable), root.filePath(QLatin1String(folder)));
    }
    if (const QString pictures = environment.value(QStringLiteral("GUION_CAPTURAS")); !pictures.isEmpty())
        environment.insert(QStringLiteral("GUION_CAPTURAS"), QDir(pictures).absolutePath());
    const bool display = environment.contains(QStringLiteral("DISPLAY")) ||
                         environment.contains(QStringLiteral("WAYLAND_DISPLAY"));
    const QString plugin = environment.value(QStringLiteral("QT_QPA_PLATFORM"));
    if (plugin == u"offscreen" || (!display && plugin.isEmpty()))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), screen(root));
    QFile::setPermissions(root.filePath(QStringLiteral("sesion")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return environment;
}

/// Waits for the process; false when it had to be killed because no step came to its end for too long.
bool waitForEnd(QProcess &process, const QString &record)
{
    QByteArray before;
    for (;;) {
        if (process.waitForFinished(hangMs))
            return true;
        QFile file(record);
        const QByteArray now = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (now == before) {
            process.kill();
            process.waitForFinished();
            return false;
        }
        before = now;
    }
}

Result runFile(const QString &file)
{
    const QTemporaryDir root;
    const QString record = root.filePath(QStringLiteral("registro"));
    QProcess process;
    process.setProcessEnvironment(environmentIn(QDir(root.path())));
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(childOption), file, record});
    const bool ended = waitForEnd(process, record);
    Result result = readRecord(record);
    const bool crashed = process.exitStatus() != QProcess::NormalExit || process.exitCode() > EXIT_FAILURE;
    if (!ended || crashed || (result.line != 0)) {
        const QString what = ended ? QStringLiteral("the program crashed or left by itself")
                                   : QStringLiteral("the program hangs");
        say(QStringLiteral("%1:%2: %3").arg(file).arg(result.line).arg(what));
        ++result.failed;
    } else if (process.exitCode() != EXIT_SUCCESS && result.failed == 0) {
        ++result.failed; // it could not be read
    }
    return result;
}

int runAll(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList files = application.arguments().mid(1);
    if (files.isEmpty()) {
        std::fputs("guion FILE.guion [FILE.guion ...]\n", stderr);
        return EXIT_FAILURE;
    }
    Result total;
    for (const QString &file : files) {
        const Result result = runFile(file);
        total.passed += result.passed;
        total.failed += result.failed;
    }
    say(QStringLiteral("%1 passed, %2 failed").arg(total.passed).arg(total.failed));
    return total.failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// The plugin without a display tells of each thing it lacks.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

int runOne(int argc, char **argv, const ProgramFactory &makeProgram)
{
    qInstallMessageHandler(printMessage);
    forms::Application application(argc, argv);
    const QStringList arguments = application.arguments();
    try {
        const std::vector<Step> steps = read(arguments[2]);
        const auto program = makeProgram();
        Runner runner(arguments[2], steps, *program, arguments[3]);
        return runner.run();
    } catch (const Failure &failure) {
        say(failure.text());
        return EXIT_FAILURE;
    }
}

bool isPicture(const QFileInfo &file)
{
    static const QStringList suffixes{"gif", "jpg", "jpeg", "png", "bmp", "pdf"};
    return suffixes.contains(file.suffix().toLower());
}

} // namespace

void copyDelivered(const QString &source, const QString &target)
{
    const QDir from(source);
    const QDir to(target);
    QDirIterator files(source, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const QString copy = to.filePath(from.relativeFilePath(file.filePath()));
        to.mkpath(QFileInfo(copy).path());
        if (isPicture(file)) {
            QFile::link(file.absoluteFilePath(), copy);
        } else {
            QFile::copy(file.filePath(), copy);
            QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
        }
    }
}

int runMain(int argc, char **argv, const ProgramFactory &makeProgram)
{
    const bool child = argc == 4 && qstrcmp(argv[1], childOption) == 0;
    return child ? runOne(argc, argv, makeProgram) : runAll(argc, argv);
}

} // namespace guion
