#pragma once

#include <QString>

namespace ports
{

/// What a record takes over from a catalogue: the name, which is stored as it reads today, and the
/// catalogue's key. A blank name is a line without an entry; its key is then 0.
struct Renglon {
    QString nombre;
    qint64 id = 0;

    bool operator==(const Renglon &) const = default;
};

} // namespace ports
