#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QMainWindow>
#include <QTimeEdit>

/// The windows of the program that the runner is tried on.
namespace selftest
{

class portada : public forms::Form
{
    Q_OBJECT
public:
    portada();

private:
    forms::PictureBox Picture1;
    forms::Timer Timer1;
};

/// One control of each kind; Label1 tells what the last one reported.
class panControles : public forms::Form
{
    Q_OBJECT
public:
    panControles();

private:
    void report();
    void fillLists();
    void layOut();

    forms::Label Label1, Label2;
    forms::TextBox Text1, Text2;
    forms::MemoBox Memo1;
    forms::ComboBox Combo1, Combo2;
    forms::ListBox List1, List2, List3;
    forms::CheckBox Check1;
    forms::ControlArray<forms::OptionButton> Option1;
    forms::DTPicker DTPicker1;
    QTimeEdit Hora1;
    forms::MonthView MonthView1;
    forms::TreeView TreeView1;
    forms::SSTab SSTab1;
    forms::Frame Frame1;
    forms::PictureBox Picture1;
    forms::ControlArray<forms::Label> sello;
    forms::CommandButton Command1, Command2, Command3;
};

/// Opens every box; Label1 shows the answer.
class panPreguntas : public forms::Form
{
    Q_OBJECT
public:
    panPreguntas();

protected:
    void activate() override;

private:
    void tell();
    void nest();
    void work();
    void print();
    void popUp();

    forms::Label Label1, Label2;
    forms::ControlArray<forms::CommandButton> Command1;
    int activations_ = 0;
};

/// A child window that counts its activations and is kept open by its check box.
class panHija : public forms::Form
{
    Q_OBJECT
public:
    panHija();

protected:
    void activate() override;
    bool queryUnload() override { return !Check1.isChecked(); }

private:
    forms::Label Label1;
    forms::CheckBox Check1;
    forms::CommandButton Command1, Command2;
    int activations_ = 0;
};

class Principal : public QMainWindow
{
    Q_OBJECT
public:
    Principal();

private:
    QAction *addItem(QMenu *menu, const QString &name, const QString &caption);
    void openChild();

    int children_ = 0;
};

} // namespace selftest
