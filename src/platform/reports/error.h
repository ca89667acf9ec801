#pragma once

#include "platform/basic/errors.h"

namespace reports
{

/// What keeps a report from being shown: its file, its selection, or where it should be written. The text
/// says where, for the person who wrote it.
class Error : public basic::Error
{
public:
    enum Number { ReportFile = 20500, Selection = 20501, Output = 20502 };
    Error(Number number, const QString &description) : basic::Error(number, description) {}
};

} // namespace reports
