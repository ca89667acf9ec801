#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace forms
{

/// The free text that a window or control carries for its callers.
inline QString tag(const QObject *object)
{
    return object->property("Tag").toString();
}
inline void setTag(QObject *object, const QString &tag)
{
    object->setProperty("Tag", tag);
}

} // namespace forms
