#pragma once

#include <QApplication>

namespace forms
{

/// The event dispatcher: an error that a handler lets through is shown in a box and the program goes on,
/// unless the error is raised from a timer's handler that has asked to end the program with it.
class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;

    /// The style, fonts, Spanish standard buttons and icons common to all windows.
    static void dress();
};

} // namespace forms
