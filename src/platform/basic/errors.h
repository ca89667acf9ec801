#pragma once

#include <QString>

#include <algorithm>
#include <exception>
#include <initializer_list>

namespace basic
{

/// A failure that the program can tell a person about: a number and a Spanish description. Every layer
/// below the screens throws this or a class of it.
class Error : public std::exception
{
public:
    Error(int number, QString description)
        : number_(number), description_(std::move(description)), what_(description_.toUtf8())
    {
    }

    int number() const { return number_; }
    const QString &description() const { return description_; }
    const char *what() const noexcept override { return what_.constData(); }

private:
    int number_;
    QString description_;
    QByteArray what_;
};

/// Runs one statement whose failure of these kinds the rule skips; true when it went through. A failure of
/// another kind goes on to the caller.
template <class Statement>
bool ignoring(std::initializer_list<int> expected, Statement &&statement)
{
    try {
        statement();
        return true;
    } catch (const Error &error) {
        if (std::find(expected.begin(), expected.end(), error.number()) == expected.end())
            throw;
        return false;
    }
}

} // namespace basic
