#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Fecha": a month to pick one day from. Picking answers "SI"; until then the tag is "NO".
class panSelFecha : public forms::Form
{
    Q_OBJECT
public:
    explicit panSelFecha(const QString &name = QStringLiteral("panSelFecha"));

    basic::Date value() const { return MonthView1.value(); }
    void setValue(basic::Date date) { MonthView1.setValue(date); }

protected:
    void load() override;

private:
    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Seleccione fecha :")};
    forms::MonthView MonthView1{QStringLiteral("MonthView1")};
};
