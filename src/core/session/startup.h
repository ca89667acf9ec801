#pragma once

#include <QString>

#include <memory>

class Vademecum;

namespace MODULE11
{

/// The start-up procedure, in its fixed order, up to the main window shown. `comando` is the word of the
/// command line. Null when the program has ended on the way.
std::unique_ptr<Vademecum> iniciar(const QString &comando);

/// The connect string under which the practice's file is opened.
QString conexionDeLaBase();

} // namespace MODULE11
