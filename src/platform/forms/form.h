#pragma once

#include "platform/forms/tag.h"

#include <QDialog>
#include <QList>

class QEventLoop;
class QMdiArea;
class QMdiSubWindow;

namespace forms
{

/// A window of the system: a child of the main window's area or a modal dialogue. It answers its caller
/// through tag() ("SI", "NO", a value) and hides; the caller reads the answer and lets it go. Its objectName
/// is its name in the system.
class Form : public QDialog
{
    Q_OBJECT
public:
    explicit Form(const QString &name);
    ~Form() override;

    QString name() const { return objectName(); }
    QString tag() const { return forms::tag(this); }
    void setTag(const QString &tag) { forms::setTag(this, tag); }

    /// Shows the window above all others and returns when it has been hidden or closed.
    void showModal();
    /// Shows the window as a child of the main window's area; it is deleted when it closes.
    void showChild(bool maximised = false);
    /// Closes the window unless queryUnload() keeps it.
    void unload();
    /// Hides a modal window with the answer in its tag.
    void answer(const QString &tag);

    void done(int result) override; // Esc and the frame's close end here too
    void reject() override;

protected:
    /// Once, before the window is first shown.
    virtual void load() {}
    /// When the window is first shown, and whenever it becomes the active window again after another Form.
    virtual void activate() {}
    /// Before the window closes; false keeps it open.
    virtual bool queryUnload() { return true; }
    /// Esc: closes the window, as the frame's button does, unless a screen gives it another sense.
    virtual void escape() { unload(); }

    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    friend void activated(Form *form);
    void prepare();
    QMdiSubWindow *frame() const; ///< of a child form, else null
    void keepPlacement();
    bool loaded_ = false;
    bool sizedByPerson_ = false;
    QEventLoop *loop_ = nullptr; ///< of showModal()
};

/// The area of the main window that child forms open in; set once by the main window.
void setChildArea(QMdiArea *area);
QMdiArea *childArea();
/// The open child form of this name that was active last, or null. Windows that are not "new" are brought
/// forward and not opened a second time.
Form *openChild(const QString &name);
/// Arranges the child forms wholly inside the area.
void cascade();
void tile();

/// The active child form, or null: the current patient is its tag.
Form *activeChild();
/// Every form that exists, the main window aside, oldest first.
QList<Form *> openForms();

/// The visible forms, the last active one first.
QList<Form *> formsByActivity();
/// The modal form above all others, or null.
Form *topModal();

/// Tells the form system that `form` has become the active one; calls activate() when it was another before.
void activated(Form *form);

void centreOnScreen(QWidget *window);

} // namespace forms
