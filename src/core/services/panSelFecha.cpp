#include "core/services/panSelFecha.h"

#include "platform/basic/environment.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSelFecha::panSelFecha(const QString &name) : Form(name)
{
    setWindowTitle(u"Fecha"_s);
    setContents(this, Column{Label1, MonthView1});
    setValue(basic::today());
    connect(&MonthView1, &QCalendarWidget::clicked, this, [this] { answer(u"SI"_s); });
    connect(&MonthView1, &QCalendarWidget::activated, this, [this] { answer(u"SI"_s); });
}

void panSelFecha::load()
{
    setTag(u"NO"_s);
}

#include "moc_panSelFecha.cpp"
