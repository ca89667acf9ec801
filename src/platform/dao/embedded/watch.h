#pragma once

#include "platform/dao/database.h"
#include "platform/dao/embedded/embeddedengine.h"

#include <QFileInfo>

#include <algorithm>

namespace dao
{

/// Asks now and then whether the work goes on, by how much of the new file there is.
class Watch
{
public:
    Watch(const FileProgress &progress, const QString &source, QString fresh)
        : progress_(progress), fresh_(std::move(fresh)), total_(QFileInfo(source).size())
    {
    }

    bool goesOn()
    {
        if (progress_ && !stopped_)
            stopped_ = !progress_(std::min(QFileInfo(fresh_).size(), total_), total_);
        return !stopped_;
    }
    bool stopped() const { return stopped_; }
    /// Of the statements of a connection as well.
    void follow(EmbeddedEngine &engine);

private:
    const FileProgress &progress_;
    QString fresh_;
    qint64 total_;
    bool stopped_ = false;
};

} // namespace dao
