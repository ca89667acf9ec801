#pragma once

#include "platform/basic/value.h"

#include <QDate>
#include <QLineEdit>

#include <optional>

namespace forms
{

/// A date field "dd/mm/yyyy" with a drop-down calendar; starts at today. The whole text is read when the
/// field is left or its date is asked for, as basic::typedDate() reads it. A text that is no date is marked
/// and not left. Up and down step the part where the cursor stands.
class DTPicker : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged)
public:
    /// Whether the field may be empty, which stands for Null.
    enum class Presence { Required, Optional };
    explicit DTPicker(const QString &name, Presence presence = Presence::Required);

    /// The day; not valid while the field is empty. Throws basic::Error while the text is no date.
    QDate date() const;
    void setDate(QDate date); ///< one that is not valid empties a field that may be
    basic::Date value() const { return basic::Date(date()); }
    void setValue(basic::Date date) { setDate(date.date()); }
    /// The same where Null stands for an empty field.
    basic::Value fieldValue() const;
    void setFieldValue(const basic::Value &value);

    bool readable() const; ///< the text is a date, or rightly empty
    void openCalendar();

signals:
    void dateChanged(QDate date); ///< another day was typed to its end, stepped to or chosen

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    bool take(); ///< makes the text the date; false, and a mark, when it is none
    void show(QDate date);
    void step(int by);

    Presence presence_;
    QDate date_;
    bool selectOnRelease_ = false;
};

} // namespace forms
