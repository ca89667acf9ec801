#pragma once

#include "guion/program.h"
#include "guion/script.h"

#include <QString>

#include <functional>

namespace guion
{

/// What the steps of one script share.
class Stage
{
public:
    virtual ~Stage() = default;
    virtual Program &program() = 0;
    virtual bool started() const = 0;
    virtual bool ended() const = 0;
    /// Runs the start-up procedure; returns only when the program has left it.
    virtual void start(const QString &word) = 0;
    /// Holds the next step back for so long.
    virtual void pause(int milliseconds) = 0;
};

enum class Kind {
    Prepare, ///< acts on the surroundings, whatever is open
    Start,
    Act,    ///< a person's act, not possible past an open box
    Answer, ///< an act on the box itself
    Check,
};

/// The part of a step that reaches into the program and may run long: windows open in it and further steps
/// are done before it returns.
using Deed = std::function<void()>;

struct Command {
    Kind kind;
    /// Finds what the step is about, throwing Missing while it is not there and Failure when it will not do.
    /// A check is done with that and leaves no deed.
    std::function<Deed(Stage &, const Step &)> prepare;
};

/// Null when there is no step of that name.
const Command *command(const QString &name);

} // namespace guion
