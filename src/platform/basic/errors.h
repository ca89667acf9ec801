#pragma once

#include <QString>

#include <exception>

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

/// Runs one statement whose failure the rule skips; true when it went through.
template <class Statement>
bool ignoringErrors(Statement &&statement)
{
    try {
        statement();
        return true;
    } catch (const Error &) {
        return false;
    }
}

} // namespace basic
