#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

#include <compare>
#include <variant>

namespace basic
{

/// A moment as the practice's data hold it: whole days since 1899-12-30 with the time of day as the
/// fraction, to the whole second, so that date minus date is days. A time alone has day 0.
class Date
{
public:
    Date() = default;
    explicit Date(QDate date) : Date(date, QTime(0, 0)) {}
    explicit Date(QTime time) : Date(QDate(1899, 12, 30), time) {}
    Date(QDate date, QTime time);

    static Date fromSerial(double serial);

    double serial() const;
    qint64 wholeDays() const { return days_; }
    QDate date() const;
    QTime time() const;
    Date dateOnly() const { return Date(date()); }

    auto operator<=>(const Date &) const = default;

private:
    qint64 days_ = 0;
    int seconds_ = 0; // of the day, 0 to 86399
};

/// Money, exact to four decimals.
class Currency
{
public:
    Currency() = default;
    static Currency fromUnits(qint64 tenThousandths);
    static Currency fromDouble(double amount); ///< rounds half to even at the fourth decimal

    qint64 units() const { return units_; }
    double toDouble() const { return static_cast<double>(units_) / 10000.0; }

    Currency operator+(Currency o) const { return fromUnits(units_ + o.units_); }
    Currency operator-(Currency o) const { return fromUnits(units_ - o.units_); }
    auto operator<=>(const Currency &) const = default;

private:
    qint64 units_ = 0;
};

struct Null {
    bool operator==(const Null &) const = default;
};

/// The nearest whole number; the largest there is for what lies beyond it, 0 for what is no number.
qint64 nearestWhole(double number);

/// One value of a field, a control or a setting. Empty (nothing assigned yet), Null (the database's
/// "not known") and an empty text are three different values.
class Value
{
public:
    enum class Kind { Empty, Null, Bit, Long, Double, Currency, Date, Text };

    Value() = default;
    Value(basic::Null) : data_(basic::Null{}) {}
    Value(bool b) : data_(b) {}
    Value(int n) : data_(static_cast<qint64>(n)) {}
    Value(qint64 n) : data_(n) {}
    Value(double d) : data_(d) {}
    Value(basic::Currency c) : data_(c) {}
    Value(basic::Date d) : data_(d) {}
    Value(QDate d) : data_(basic::Date(d)) {}
    Value(QString s) : data_(std::move(s)) {}
    Value(QStringView s) : data_(s.toString()) {}
    Value(const char16_t *s) : data_(QStringView(s).toString()) {}
    Value(const char *utf8) : data_(QString::fromUtf8(utf8)) {}

    Kind kind() const { return static_cast<Kind>(data_.index()); }
    bool isNull() const { return kind() == Kind::Null; }
    bool isEmpty() const { return kind() == Kind::Empty; }
    /// Null, Empty and the empty text: what most screens treat as "nothing there".
    bool isBlank() const;
    bool isNumeric() const;

    /// The text a person reads: Null and Empty give "", numbers a decimal comma, dates the short format.
    QString text() const;
    /// Null, Empty and texts that are no number give 0; a date gives its serial, true gives -1.
    double number() const;
    qint64 integer() const;   ///< number(), rounded half to even
    bool truth() const;       ///< number() other than 0
    basic::Date date() const; ///< a text is read as CDate does; what is no date gives day 0
    basic::Currency currency() const;

    template <class T>
    const T *as() const
    {
        return std::get_if<T>(&data_);
    }

    /// Same kind and same content; texts compare exactly.
    bool operator==(const Value &) const = default;

private:
    std::variant<std::monostate, basic::Null, bool, qint64, double, basic::Currency, basic::Date, QString>
        data_;
};

} // namespace basic
