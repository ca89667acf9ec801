#include "platform/forms/progress.h"

#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

#include <QApplication>

namespace forms
{

namespace
{

constexpr int patienceMs = 700;
constexpr int steps = 1000;

} // namespace

Progress::Progress(const QString &work) : work_(work), dialogue_(QApplication::activeWindow())
{
    dialogue_.setWindowTitle(QStringLiteral("Un momento"));
    dialogue_.setLabelText(work);
    dialogue_.setCancelButtonText(QStringLiteral("&Detener"));
    dialogue_.setWindowModality(Qt::ApplicationModal);
    dialogue_.setMinimumDuration(patienceMs);
    dialogue_.setMinimumWidth(420);
    dialogue_.setAutoClose(false);
    dialogue_.setAutoReset(false);
    markAsBox(dialogue_, work);
}

bool Progress::tell(qint64 done, qint64 total)
{
    const int maximum = total > 0 ? steps : 0;
    if (dialogue_.maximum() != maximum)
        dialogue_.setMaximum(maximum);
    dialogue_.setLabelText(QStringLiteral("%1 %2").arg(work_, basic::format(done, u"#,##0")));
    dialogue_.setValue(total > 0 ? static_cast<int>(done * steps / total) : 0);
    return !dialogue_.wasCanceled();
}

} // namespace forms
