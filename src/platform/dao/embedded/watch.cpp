#include "platform/dao/embedded/watch.h"

#include ENGINE_HEADER

namespace dao
{

void Watch::follow(EmbeddedEngine &engine)
{
    constexpr int instructions = 1'000'000;
    const auto ask = [](void *own) { return static_cast<Watch *>(own)->goesOn() ? 0 : 1; };
    sqlite3_progress_handler(engine.handle(), instructions, ask, this);
}

} // namespace dao
