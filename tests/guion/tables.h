#pragma once

#include "guion/steps.h"

#include <map>

namespace guion
{

using CommandTable = std::map<QString, Command>;

CommandTable preparingSteps();
CommandTable actingSteps();
CommandTable checkingSteps();

} // namespace guion
