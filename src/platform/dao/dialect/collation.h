#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace dao
{

/// The one order of texts, in comparisons, sorting, grouping and indexes alike: Spanish, without regard to
/// case; accents count only between texts that are otherwise equal; ñ is a letter between n and o. Texts are
/// UTF-8. Less than 0, 0 or more than 0. Folded by hand over the Latin letters, so that no update of a
/// library can change the order under an index of an existing file.
int compareSpanish(QByteArrayView a, QByteArrayView b);
int compareSpanish(QStringView a, QStringView b);

} // namespace dao
