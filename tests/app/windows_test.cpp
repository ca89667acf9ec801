#include "answers.h"
#include "core/windows/Vademecum.h"
#include "openwindows.h"
#include "platform/forms/wrong.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusTipEvent>

#include <set>

using namespace Qt::StringLiterals;

namespace
{

class WindowsTest : public OpenWindows
{
};

/// What a person may press with Alt where it is in sight.
QString mnemonicText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() && label->buddy()->isVisible() ? label->text() : QString();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    return {};
}

/// Of a group of buttons that bring sections to the front one letter may lead from one to the next.
bool takesTurns(const QWidget &widget)
{
    const auto *button = qobject_cast<const QPushButton *>(&widget);
    return button && button->isCheckable() && button->group();
}

/// The letters that lead to two controls in sight at once.
QStringList doubledMnemonics(const forms::Form &form)
{
    std::map<QChar, QStringList> uses;
    const auto note = [&uses](const QString &text) {
        if (const QKeySequence keys = QKeySequence::mnemonic(text); !keys.isEmpty())
            uses[keys.toString().back()] += text;
    };
    std::set<QString> turns;
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const QString text = mnemonicText(*widget);
        if (!takesTurns(*widget) || turns.insert(QKeySequence::mnemonic(text).toString()).second)
            note(text);
        if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
            for (int page = 0; page < tabs->count(); ++page)
                note(tabs->tabText(page));
    }
    QStringList doubled;
    for (const auto &[letter, texts] : uses)
        if (texts.size() > 1)
            doubled += texts.join(u" / "_s);
    return doubled;
}

void pressTab(QWidget &window)
{
    QWidget *receiver = window.focusWidget() ? window.focusWidget() : &window;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, u"\t"_s);
    QCoreApplication::sendEvent(receiver, &press);
}

/// The fields and buttons in sight that the Tab key does not come to. Of a group of options it comes to the
/// chosen one.
QStringList outOfReach(forms::Form &form)
{
    std::set<QWidget *> missed;
    for (QWidget *widget : form.findChildren<QWidget *>()) {
        if (const auto *option = qobject_cast<QRadioButton *>(widget); option && !option->isChecked())
            continue;
        const bool composed = qobject_cast<QCalendarWidget *>(widget->parentWidget()) != nullptr;
        if (widget->isVisible() && widget->isEnabled() && !composed && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) && !widget->objectName().startsWith(u"qt_"))
            missed.insert(widget);
    }
    for (qsizetype steps = 2 * qsizetype(missed.size()) + 20; steps > 0 && !missed.empty(); --steps) {
        QWidget *reached = form.focusWidget();
        missed.erase(reached);
        if (qobject_cast<QRadioButton *>(reached)) // from there the arrows lead to the others
            for (QWidget *option : reached->parentWidget()->findChildren<QRadioButton *>())
                missed.erase(option);
        if (reached && takesTurns(*reached))
            for (QWidget *section : static_cast<QPushButton *>(reached)->group()->buttons())
                missed.erase(section);
        pressTab(form);
    }
    QStringList names;
    for (const QWidget *widget : missed)
        names += u"%1 %2"_s.arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
    return names;
}

void onEachPage(forms::Form &form, const std::function<void()> &look)
{
    look();
    for (auto *tabs : form.findChildren<forms::SSTab *>())
        for (int page = 0; tabs->isVisible() && tabs->widget(page) && page < 9; ++page) {
            tabs->setCurrentIndex(page);
            QCoreApplication::processEvents();
            look();
        }
}

} // namespace

TEST_F(WindowsTest, everyLetterLeadsToOneControlAndTabToAll)
{
    inEach({1300, 900}, [](forms::Form &form) {
        QStringList doubled, missed;
        onEachPage(form, [&] {
            doubled += doubledMnemonics(form);
            missed += outOfReach(form);
        });
        doubled.removeDuplicates();
        missed.removeDuplicates();
        EXPECT_EQ(doubled.join(u"; "_s).toStdString(), "");
        EXPECT_EQ(missed.join(u"; "_s).toStdString(), "");
    });
}

TEST_F(WindowsTest, aListIsComputedOnceFormulaAndColumnAreChosen)
{
    run({"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (1, cdate('15/03/2024'), 9000)",
         "INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (1, cdate('16/03/2024'), 10000)"});
    panListados list(u"Select Peso from Medidas"_s, u"Medidas"_s);
    auto *formula = list.findChild<forms::ComboBox *>(u"Combo1"_s);
    auto *column = list.findChild<forms::ComboBox *>(u"Combo2"_s);
    auto *compute = list.findChild<forms::CommandButton *>(u"Command1"_s);
    QTimer::singleShot(0, &list, [] { QApplication::activeModalWidget()->close(); });
    compute->click();
    EXPECT_TRUE(forms::isMarkedWrong(*formula));
    formula->setValue(u"Promedio"_s);
    column->setValue(u"Peso"_s);
    compute->click();
    EXPECT_EQ(list.findChild<forms::Label *>(u"Label1"_s)->caption().toStdString(), "9.500,00");
}

TEST_F(WindowsTest, theMainWindowKeepsItsStatusAndSaysWhyAMenuDoesNothing)
{
    Vademecum window;
    window.ponerCaption();
    const auto *bar = window.findChild<QStatusBar *>();
    const QString status = bar->currentMessage();
    EXPECT_TRUE(status.contains(MODULE11::DrActual));
    QStatusTipEvent passing{QString()};
    QCoreApplication::sendEvent(&window, &passing);
    EXPECT_EQ(bar->currentMessage(), status);

    std::map<QString, QString> notes; // by the menu's caption
    for (QMenu *menu : window.menuBar()->findChildren<QMenu *>()) {
        emit menu->aboutToShow();
        const QAction *note = menu->actions().value(0);
        notes[menu->title().remove(u'&')] =
            note->isVisible() && !note->isEnabled() ? note->text() : QString();
    }
    EXPECT_EQ(notes[u"Archivos"_s], QString());
    EXPECT_EQ(notes[u"Antecedentes Perinatales"_s], u"Abra una ficha"_s);
    EXPECT_EQ(notes[u"Odontología"_s], QString()) << "an item, no menu";
    EXPECT_EQ(notes[u"Oftalmología"_s], u"Abra una ficha"_s);
}

TEST_F(WindowsTest, passwordsAreSeenOnlyWhenAskedFor)
{
    run({"INSERT INTO Usuarios (Nombre, Clave, Nivel, Tipo) VALUES ('ana', 'secreta', 2, 'M')"});
    main.resize(1300, 900);
    main.show();
    auto *users = screens::make("panUsuarios").release();
    users->showChild();
    auto *grid = users->findChild<forms::DBGrid *>(u"DBGrid1"_s);
    const auto inSight = [&] {
        return grid->model()->index(grid->model()->rowCount() - 1, 1).data().toString();
    };
    auto *field = users->findChild<forms::TextBox *>(u"Text3"_s);
    grid->setCurrentRow(grid->model()->rowCount() - 1);
    EXPECT_EQ(field->text(), u"secreta"_s);
    EXPECT_EQ(field->echoMode(), QLineEdit::Password);
    EXPECT_FALSE(inSight().contains(u"secreta"_s));
    field->actions().constFirst()->trigger();
    EXPECT_EQ(field->echoMode(), QLineEdit::Normal);
    EXPECT_EQ(inSight(), u"secreta"_s);
    users->unload();
}

/// The first rows of a large table are in sight before all are counted.
TEST_F(WindowsTest, aTableIsCountedOnceItIsInSight)
{
    dao::Recordset measures = MODULE11::BaseDatos.openRecordset(u"Medidas"_s);
    dao::Batch batch(MODULE11::BaseDatos);
    for (int patient = 0; patient < 300; ++patient) {
        measures.addNew();
        measures[u"Paciente"] = patient;
        measures.update();
    }
    batch.commit();
    main.resize(1300, 900);
    main.show();
    auto *files = screens::make("panGArchivos").release();
    files->showChild();
    const auto *place = files->findChild<forms::Label *>(u"Label1"_s);
    const auto inSight = [&] { return place->caption().toStdString(); };
    auto *grid = files->findChild<forms::DBGrid *>(u"DBGrid1"_s);
    files->findChild<forms::ComboBox *>(u"Combo1"_s)->setValue(u"Medidas"_s);
    EXPECT_EQ(inSight(), "1 de … registros.");
    EXPECT_LT(grid->model()->rowCount(), 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(inSight(), "1 de 300 registros.");
    grid->setCurrentRow(299);
    EXPECT_EQ(inSight(), "300 de 300 registros.");
    files->findChild<forms::CheckBox *>(u"Check2"_s)->setChecked(true);
    const Answers yes({u"Sí"_s});
    files->findChild<forms::CommandButton *>(u"Command3"_s)->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(inSight(), "299 de 299 registros.");
    EXPECT_EQ(one(u"Select count(*) from Medidas where Paciente = 299"_s), u"0"_s);
    files->unload();
}

/// As large as the screen leaves it, on a small one and on one of twice the scale: the window lies inside and
/// its last row, which accepts and closes, is in sight.
TEST_F(WindowsTest, theButtonsThatCloseAreInSightOnASmallScreen)
{
    for (const QSize room : {QSize(1366, 600), QSize(960, 420)})
        inEach(room, [&](forms::Form &form) {
            const QRect inside(QPoint(), area->viewport()->size());
            EXPECT_TRUE(inside.contains(form.parentWidget()->geometry()));
            for (const auto *button : form.findChildren<forms::CommandButton *>()) {
                static const QStringList closing = {u"&Aceptar"_s, u"&Cancelar"_s, u"&Cerrar"_s, u"&Salir"_s};
                if (!closing.contains(button->text()))
                    continue;
                EXPECT_FALSE(button->visibleRegion().isEmpty()) << button->text().toStdString();
                EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect())
                    << button->text().toStdString();
            }
        });
}
