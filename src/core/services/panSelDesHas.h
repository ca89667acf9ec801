#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// A range of dates, both starting at today. Accepting needs the first to be before the second; otherwise
/// nothing happens.
class panSelDesHas : public forms::Form
{
    Q_OBJECT
public:
    explicit panSelDesHas(const QString &texto);

    basic::Date desde() const { return dt1.value(); }
    basic::Date hasta() const { return dt2.value(); }

private:
    void aceptar();

    forms::Label Label3{QStringLiteral("Label3")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
