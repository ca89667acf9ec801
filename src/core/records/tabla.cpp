#include "core/records/tabla.h"

#include "core/records/fichaDelPaciente.h"
#include "core/services/services.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;

namespace records
{

Tabla::Tabla(const QString &window, const QString &title, std::vector<forms::GridColumn> columns)
    : Form(window)
{
    setWindowTitle(title);
    DBGrid1.setSource(Data1, std::move(columns));
    connect(&Data1, &forms::Data::reposition, this, &Tabla::showRow);
}

void Tabla::setSource(const QString &sql)
{
    Data1.setRecordSource(sql);
}

void Tabla::load()
{
    refresh();
}

void Tabla::reread()
{
    records::reread(Data1);
}

bool Tabla::queryUnload()
{
    Data1.updateRecord();
    return true;
}

forms::CommandButton &Tabla::command(const QString &name, const QString &caption, const QString &icon,
                                     std::function<void()> work, Before before)
{
    return comando(*this, name, caption, icon, std::move(work), std::move(before));
}

forms::CommandButton &Tabla::rowCommand(const QString &name, const QString &caption, const QString &icon,
                                        std::function<void()> work, Before before)
{
    forms::CommandButton &button = command(name, caption, icon, std::move(work), std::move(before));
    button.setEnabled(false);
    ofTheRow_.push_back(&button);
    return button;
}

/// The refusal of a row comes before the question about it.
forms::CommandButton &Tabla::deletes(const QString &name, const QString &caption, Before before)
{
    const QString question = std::exchange(before.question, {});
    const auto work = [this, question] {
        if (mayDelete() && MODULE11::PreguntaSiBorra(question))
            deleteRow();
    };
    return rowCommand(name, caption, u"borrar"_s, work, std::move(before));
}

forms::CommandButton &Tabla::closes(const QString &name, const QString &caption)
{
    return command(name, caption, u"cerrar"_s, [this] { unload(); });
}

void Tabla::addRow(const Fill &fill)
{
    records::addRow(Data1, fill);
}

void Tabla::capture(forms::Form &dialogue, const Fill &fill)
{
    dialogue.setTag(tag());
    records::capture(Data1, dialogue, fill);
}

void Tabla::deleteRow()
{
    Data1.deleteRow();
}

void Tabla::showRow()
{
    for (forms::CommandButton *button : ofTheRow_)
        button->setEnabled(Data1.hasRow());
    rowShown();
}

ListaDelPaciente::ListaDelPaciente(const QString &window, const QString &title,
                                   std::vector<forms::GridColumn> columns, const QString &source)
    : Tabla(window, title, std::move(columns)), source_(source)
{
}

void ListaDelPaciente::activate()
{
    const auto numero = pacienteDe(*this);
    if (!numero)
        return;
    if (*numero == paciente_ && Data1.hasRecordset()) {
        reread();
        return;
    }
    paciente_ = *numero;
    setSource(source_.arg(paciente_));
    refresh();
}

} // namespace records

#include "moc_tabla.cpp"
