#pragma once

#include "platform/basic/value.h"
#include "platform/forms/dtpicker.h"
#include "platform/forms/tag.h"
#include "platform/forms/typeahead.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <vector>

/// The controls of the system's windows: thin classes over the toolkit's widgets. Each takes the name it has
/// in the system (its objectName) and, where it shows one, its caption with "&" before the mnemonic. They
/// are members of their form and get their parent from the layout.
namespace forms
{

class Label : public QLabel
{
    Q_OBJECT
public:
    explicit Label(const QString &name, const QString &caption = {});
    void setCaption(const QString &caption) { setText(caption); }
    QString caption() const { return text(); }
signals:
    void clicked();
    void hovered();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
};

/// A text field of one line. What does not fit its length is cut while it is typed or pasted, and characters
/// that nobody sees do not enter.
class TextBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit TextBox(const QString &name, int maxLength = 0);
    bool hasOwnLength() const { return ownLength_; } ///< a length was given, not left to the column
    /// Hides what is typed behind dots, with a button to see it.
    void setSecret();

signals:
    void secretShown(bool shown);

protected:
    void focusInEvent(QFocusEvent *event) override; // selects all when reached by keyboard

private:
    bool ownLength_;
};

/// A field where a person types to find a row. While nothing is found its text is red and it says so.
class SearchBox : public TextBox
{
    Q_OBJECT
public:
    explicit SearchBox(const QString &name, int maxLength = 0);
    void setFound(bool found);
    bool found() const { return found_; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool found_ = true;
};

/// A text field of several lines, for memos.
class MemoBox : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit MemoBox(const QString &name);

protected:
    void insertFromMimeData(const QMimeData *source) override;
};

/// Nothing is chosen until somebody chooses. Letters typed go to the first entry that begins so, whatever its
/// accents; in an editable one they are completed.
class ComboBox : public QComboBox
{
    Q_OBJECT
public:
    /// `editable` combos take any text; the others only their entries.
    explicit ComboBox(const QString &name, const QStringList &entries = {}, bool editable = false);
    /// Selects the entry with this text; in an editable combo writes it; otherwise nothing is selected.
    void setValue(const QString &text);
    QString value() const { return currentText(); }
};

class ListBox : public QListWidget
{
    Q_OBJECT
public:
    explicit ListBox(const QString &name);
    void addLine(const QString &text) { addItem(text); }
    QStringList lines() const;

    /// Goes to the first line from the current one on that begins with what is typed, whatever its accents.
    /// Where several lines can be chosen, what is chosen stays so.
    void keyboardSearch(const QString &letter) override;

protected:
    /// Where several lines can be chosen Space marks the current one, or takes its mark away, and the arrows
    /// then leave the marks alone.
    void keyPressEvent(QKeyEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    bool takesSeveral() const;
    TypeAhead typeAhead_;
    bool marking_ = false; ///< by the keyboard
};

class CheckBox : public QCheckBox
{
    Q_OBJECT
public:
    CheckBox(const QString &name, const QString &caption);
};

class OptionButton : public QRadioButton
{
    Q_OBJECT
public:
    OptionButton(const QString &name, const QString &caption);
};

class CommandButton : public QPushButton
{
    Q_OBJECT
public:
    /// `icon` names a picture of the program's own set (assets/icons) without extension; empty for none.
    CommandButton(const QString &name, const QString &caption, const QString &icon = {});
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override; // Enter presses the focused button
};

/// A button of a tool bar: a picture, whose caption is read in its tip.
class ToolButton : public QToolButton
{
    Q_OBJECT
public:
    ToolButton(const QString &name, const QString &caption, const QString &icon);
};

/// A time field "hh:mm"; starts at midnight.
class TimePicker : public QTimeEdit
{
    Q_OBJECT
public:
    explicit TimePicker(const QString &name);
};

class MonthView : public QCalendarWidget
{
    Q_OBJECT
public:
    explicit MonthView(const QString &name);
    basic::Date value() const;
    void setValue(basic::Date date);
    /// A month that only shows its days has none chosen in sight.
    void setChoiceShown(bool shown);

protected:
    /// The day chosen has a frame besides its colour.
    void paintCell(QPainter *painter, const QRect &cell, QDate day) const override;

private:
    bool choiceShown_ = true;
};

class SSTab : public QTabWidget
{
    Q_OBJECT
public:
    explicit SSTab(const QString &name);
    ~SSTab() override;
    /// The captions one below the other, for more of them than have room above; before the pages are added.
    void setCaptionsAtSide();
};

class Frame : public QGroupBox
{
    Q_OBJECT
public:
    Frame(const QString &name, const QString &caption);
    ~Frame() override;
};

class TreeView : public QTreeWidget
{
    Q_OBJECT
public:
    explicit TreeView(const QString &name);
};

class Timer : public QTimer
{
    Q_OBJECT
public:
    explicit Timer(const QString &name, int interval = 0);
};

/// A picture with a drawing layer above it, addressed in twips. The background is scaled to the control's
/// size in twips; what is drawn stays until it is cleared.
class PictureBox : public QWidget
{
    Q_OBJECT
public:
    PictureBox(const QString &name, QSizeF sizeTwips);
    ~PictureBox() override;

    void loadPicture(
        const QString &file); ///< throws basic::Error 53 when the file is missing, 481 when it is no picture
    void clear();             ///< takes away what was drawn, not the background
    void drawLine(QPointF from, QPointF to, QColor colour);
    void drawCircle(QPointF centre, double radius, QColor colour);
    void setSizeTwips(QSizeF size);
    /// Background and drawing as one picture, at the resolution of the background if that is finer than the
    /// screen.
    QImage image() const;
    QSizeF sizeTwips() const { return size_; }
    QSize sizeHint() const override;

signals:
    void clicked(QPointF twips);
    void doubleClicked(QPointF twips);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    struct Stroke {
        QPointF from, to; // twips; a circle has its centre in from and its radius in radius
        double radius = 0;
        QColor colour;
    };
    void paintStrokes(QPainter &painter) const;
    QPointF twipsAt(const QMouseEvent &event) const;

    QSizeF size_;
    QImage background_;
    std::vector<Stroke> strokes_;
};

} // namespace forms
