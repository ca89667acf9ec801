#pragma once

#include "platform/dao/database.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

namespace selftest
{

/// A grid and fields over one table.
class panDatos : public forms::Form
{
    Q_OBJECT
public:
    panDatos();

protected:
    void load() override;

private:
    dao::Database database_;
    forms::Data Data1;
    forms::DBGrid DBGrid1;
    forms::TextBox Text1, Text2;
    forms::CheckBox Check1;
    forms::CommandButton Command1, Command2;
};

} // namespace selftest
