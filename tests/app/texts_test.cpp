#include "openwindows.h"

#include "platform/forms/boxes.h"

#include <QMenu>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace
{

/// Closes every dialogue and menu that opens while it lives, and keeps what the boxes said.
class Dismissal : public QObject
{
public:
    Dismissal() { startTimer(0); }
    QStringList texts;

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        QWidget *window = QApplication::activeModalWidget();
        if (!window)
            return;
        if (const auto box = forms::describeBox(window))
            texts += box->text;
        if (auto *form = qobject_cast<forms::Form *>(window))
            form->answer(u"NO"_s);
        else
            static_cast<QDialog *>(window)->reject();
    }
};

/// Does what a person does; an error that no handler takes is kept with what the boxes say.
void act(QStringList &said, const std::function<void()> &work)
{
    try {
        work();
        QCoreApplication::processEvents();
    } catch (const basic::Error &error) {
        said += error.description();
    }
}

void typeInto(forms::Form &form, const QString &text, QStringList &said)
{
    for (QWidget *widget : form.findChildren<QWidget *>()) {
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        if (auto *field = qobject_cast<QLineEdit *>(widget); field && !field->isReadOnly()) {
            act(said, [&] {
                field->setFocus();
                field->clear();
                field->insert(text);
                emit field->textEdited(field->text());
                emit field->returnPressed();
            });
        } else if (auto *memo = qobject_cast<QPlainTextEdit *>(widget); memo && !memo->isReadOnly()) {
            memo->setPlainText(text);
        }
    }
}

class TextsTest : public OpenWindows
{
};

} // namespace

/// A piece of a statement, and an apostrophe, are texts like any other: whatever field they are typed in and
/// whatever is pressed then, no statement is cut by them, and nobody is added, changed or let in.
TEST_F(TextsTest, noFieldOfAnyWindowLetsAPieceOfAStatementThrough)
{
    for (const QString &text :
         {u"x'y"_s, u"x' or 'a'='a"_s, u"x' union select Clave from Usuarios where 'a'='a"_s}) {
        Dismissal boxes;
        inEach({1300, 900}, [&](forms::Form &form) {
            QPointer<forms::Form> alive = &form;
            typeInto(form, text, boxes.texts);
            for (auto *button : form.findChildren<forms::CommandButton *>()) {
                static const QStringList leaving = {u"Imprimir"_s, u"Manual"_s, u"Salir"_s,
                                                    u"Intentar reparar la base de datos..."_s};
                if (!alive || !button->isVisible() || !button->isEnabled() ||
                    leaving.contains(button->text().remove(u'&')))
                    continue;
                act(boxes.texts, [&] { button->click(); });
                if (!alive || !form.isVisible())
                    break;
            }
        });
        for (const QString &said : boxes.texts) {
            EXPECT_FALSE(said.contains(u"sintaxis"_s)) << text.toStdString() << ": " << said.toStdString();
            EXPECT_FALSE(said.contains(u"Pocos parámetros"_s))
                << text.toStdString() << ": " << said.toStdString();
            EXPECT_FALSE(said.contains(u"sin cerrar"_s)) << text.toStdString() << ": " << said.toStdString();
        }
        EXPECT_FALSE(boxes.texts.isEmpty());
    }
    EXPECT_EQ(one(u"Select count(*) from Pacientes where Numero = 1"_s), u"1"_s);
    EXPECT_EQ(one(u"Select [Apellido y Nombres] from Pacientes where Numero = 1"_s), u"Álvarez Mía"_s);
}
