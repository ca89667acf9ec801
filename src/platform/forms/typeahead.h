#pragma once

#include <QElapsedTimer>
#include <QString>

class QAbstractItemModel;

namespace forms
{

/// Letters typed in a list, one after another without a pause, as the beginning of an entry. Accents and case
/// do not count.
class TypeAhead
{
public:
    /// Takes one more letter; the row it leads to from `current` on, and then from the top, or -1.
    int rowFor(const QString &letter, const QAbstractItemModel &model, int current);

private:
    QString typed_;
    QElapsedTimer sinceTyped_;
};

} // namespace forms
