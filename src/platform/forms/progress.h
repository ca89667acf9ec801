#pragma once

#include <QProgressDialog>
#include <QString>

namespace forms
{

/// The window of a long work: what is done, how far it is, and "Detener". It appears only when the work
/// takes longer than a person waits without asking.
class Progress
{
public:
    explicit Progress(const QString &work);

    /// Tells how many of `total` are done, of an unknown total with 0; false once the person has stopped it.
    bool tell(qint64 done, qint64 total = 0);

private:
    QString work_;
    QProgressDialog dialogue_;
};

} // namespace forms
