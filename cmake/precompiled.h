// The toolkit's headers that most sources read, compiled once.
#pragma once

#include <QtCore>
#include <QtGui>
#include <QtWidgets>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>
