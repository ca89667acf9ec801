#include "clinical/family/panResFliares.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panResFliares::panResFliares(const QStringList &antecedentes) : Form(u"panResFliares"_s)
{
    setWindowTitle(u"Resumen de antecedentes familiares"_s);
    Label1.setWordWrap(true);
    List1.addItems(antecedentes);
    Command1.setDefault(true);
    setContents(this, Column{Label1, Expanding(List1), Row{Stretch(), Command1}});
    resize(480, 400);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
}

#include "moc_panResFliares.cpp"
