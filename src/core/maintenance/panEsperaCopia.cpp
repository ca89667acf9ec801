#include "core/maintenance/panEsperaCopia.h"

#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int pasos = 1000;
constexpr qint64 mega = 1024 * 1024;

} // namespace

panEsperaCopia::panEsperaCopia(const QString &que, bool seDetiene)
    : Form(u"panEsperaCopia"_s), seDetiene_(seDetiene)
{
    setWindowTitle(u"Un momento"_s);
    Label1.setCaption(que);
    ProgressBar1.setObjectName(u"ProgressBar1"_s);
    ProgressBar1.setTextVisible(false);
    ProgressBar1.setRange(0, 0);
    Command1.setVisible(seDetiene);
    setContents(this, Column{Label1, ProgressBar1, Row{Expanding(Label2), Command1}});
    setMinimumWidth(460);
    connect(&Command1, &QPushButton::clicked, this, &panEsperaCopia::detener);
}

void panEsperaCopia::mostrar(const QString &etapa, qint64 hechos, qint64 total)
{
    ProgressBar1.setMaximum(total > 0 ? pasos : 0);
    ProgressBar1.setValue(total > 0 ? static_cast<int>(hechos * pasos / total) : 0);
    const QString cuanto =
        u" %1 de %2 MB"_s.arg(basic::format(hechos / mega, u"#,##0"), basic::format(total / mega, u"#,##0"));
    Label2.setCaption(detenida_ ? u"Se detiene..."_s : total > 0 ? etapa + cuanto : etapa);
}

void panEsperaCopia::detener()
{
    detenida_ = seDetiene_;
    Command1.setEnabled(!detenida_);
}

#include "moc_panEsperaCopia.cpp"
