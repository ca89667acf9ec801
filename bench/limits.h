#pragma once

#include <QFile>

#include <iostream>
#include <string>

namespace bench
{

/// What was measured against what a person would wait for, told as it comes.
class Limits
{
public:
    void check(const std::string &work, double value, const char *unit, double limit)
    {
        const bool within = value <= limit;
        allWithin_ = allWithin_ && within;
        std::cout << (within ? "ok   " : "OVER ") << work << ": " << value << unit << " (at most " << limit
                  << ")" << std::endl;
    }
    void time(const std::string &work, double milliseconds, double limit)
    {
        check(work, milliseconds, " ms", limit);
    }
    bool allWithin() const { return allWithin_; }

private:
    bool allWithin_ = true;
};

/// Megabytes of memory that this program holds.
inline double resident()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

} // namespace bench
