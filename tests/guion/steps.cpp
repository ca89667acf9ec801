#include "guion/steps.h"

#include "guion/tables.h"

namespace guion
{

const Command *command(const QString &name)
{
    static const CommandTable table = [] {
        CommandTable all = preparingSteps();
        all.merge(actingSteps());
        all.merge(checkingSteps());
        return all;
    }();
    const auto found = table.find(name);
    return found == table.end() ? nullptr : &found->second;
}

} // namespace guion
