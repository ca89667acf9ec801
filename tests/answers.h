#pragma once

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

/// Answers the boxes that open while it lives, each with the button of the next caption, and keeps what they
/// said. A box that does not come is a fault of the test.
class Answers : public QObject
{
public:
    explicit Answers(QStringList captions) : captions_(std::move(captions)) { startTimer(5); }
    ~Answers() override
    {
        EXPECT_TRUE(captions_.isEmpty()) << "no box for " << qPrintable(captions_.join(u'|'));
    }

    QStringList texts;
    QString last() const { return texts.isEmpty() ? QString() : texts.last(); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        QWidget *window = QApplication::activeModalWidget();
        const auto box = window ? forms::describeBox(window) : std::nullopt;
        if (!box || captions_.isEmpty())
            return;
        texts += box->text;
        const QString caption = captions_.takeFirst();
        for (auto *button : window->findChildren<QAbstractButton *>()) {
            if (button->text().remove(u'&') == caption) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "the box \"" << qPrintable(box->text) << "\" has no " << qPrintable(caption);
        window->close();
    }

private:
    QStringList captions_;
};

/// What a person does in the window that opens next; it must be closed by it.
inline void onceOpen(std::function<void(forms::Form &)> act)
{
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        forms::Form *form = forms::topModal();
        ASSERT_NE(form, nullptr);
        act(*form);
        if (form == forms::topModal()) {
            ADD_FAILURE() << "the window stays open";
            form->answer({});
        }
    });
}
