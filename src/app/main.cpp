#include "subsystems.h"

#include "core/session/ending.h"
#include "core/session/startup.h"
#include "core/windows/Vademecum.h"
#include "platform/forms/application.h"
#include "platform/settings/settings.h"

#include <QScreen>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    // A picture of the memory would hold the key of the practice's file.
    prctl(PR_SET_DUMPABLE, 0);
    forms::Application application(argc, argv);
    if (const QString title = qEnvironmentVariable("SANIRELL_TITULO"); !title.isEmpty())
        settings::setApplicationTitle(title);
    app::prepare();

    // Start-up shows windows of its own, so it runs inside the event loop.
    const QStringList words = QApplication::arguments();
    std::unique_ptr<Vademecum> window;
    const auto start = [&] {
        window = MODULE11::iniciar(words.value(1));
        if (window && !window->screen()->availableGeometry().contains(window->frameGeometry()))
            window->showMaximized(); // on a small screen, or one of a large scale
    };
    QMetaObject::invokeMethod(&application, start, Qt::QueuedConnection);
    return QApplication::exec();
}
