#include "platform/forms/boxes.h"

#include "platform/basic/errors.h"
#include "platform/forms/controls.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace forms
{

namespace
{

constexpr char boxTextProperty[] = "boxText";

QMessageBox::Icon toolkitIcon(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// The window that the box stands in front of.
QWidget *owner()
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

void dressMessage(QMessageBox &box, const QString &text, Icon icon, const QString &title)
{
    box.setWindowTitle(title);
    box.setIcon(toolkitIcon(icon));
    box.setTextFormat(Qt::PlainText); // names in angle brackets are texts, not markup
    box.setText(text);
}

/// The toolkit's own dialogue, which speaks the program's language and answers to a script.
void dressFileDialog(QFileDialog &dialogue, const QString &accept)
{
    dialogue.setOption(QFileDialog::DontUseNativeDialog);
    dialogue.setLabelText(QFileDialog::Accept, accept);
    dialogue.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    dialogue.resize(780, 500);
    markAsBox(dialogue, {});
}

QString chosen(QFileDialog &dialogue)
{
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty())
        return {};
    return dialogue.selectedFiles().constFirst();
}

/// The first extension of "Texto (*.txt *.csv)".
QString defaultSuffix(const QString &filter)
{
    const qsizetype start = filter.indexOf(QLatin1String("*."));
    qsizetype end = start + 2;
    while (start >= 0 && end < filter.size() && filter[end].isLetterOrNumber())
        ++end;
    return start < 0 ? QString() : filter.mid(start + 2, end - start - 2);
}

} // namespace

void msgBox(const QString &text, Icon icon, const QString &title)
{
    QMessageBox box(owner());
    dressMessage(box, text, icon, title);
    box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    box.exec();
}

bool askBox(const QString &text, const QString &title, Answer fallback, Icon icon)
{
    QMessageBox box(owner());
    dressMessage(box, text, icon, title);
    QPushButton *yes = box.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton *no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    box.setDefaultButton(fallback == Answer::Yes ? yes : no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

bool retryBox(const QString &text, const QString &title, const QString &otherwise)
{
    QMessageBox box(owner());
    dressMessage(box, text, Icon::Exclamation, title);
    QPushButton *again = box.addButton(QStringLiteral("&Reintentar"), QMessageBox::AcceptRole);
    QPushButton *other = box.addButton(otherwise, QMessageBox::RejectRole);
    box.setDefaultButton(again);
    box.setEscapeButton(other);
    box.exec();
    return box.clickedButton() == again;
}

std::optional<bool> askOrCancelBox(const QString &text, const QString &title, Icon icon)
{
    QMessageBox box(owner());
    dressMessage(box, text, icon, title);
    QPushButton *yes = box.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton *no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    QPushButton *cancel = box.addButton(QStringLiteral("&Cancelar"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == yes)
        return true;
    if (box.clickedButton() == no)
        return false;
    return {};
}

std::optional<QString> inputBox(const QString &prompt, const QString &title, const QString &initial,
                                int longest)
{
    QDialog box(owner());
    box.setWindowTitle(title);
    markAsBox(box, prompt);
    auto *label = new QLabel(prompt);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *field = new TextBox(QStringLiteral("texto"), longest);
    field->setText(initial);
    field->setMinimumWidth(360);
    field->selectAll();
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("Aceptar"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto *layout = new QVBoxLayout(&box);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addWidget(buttons);
    if (box.exec() != QDialog::Accepted)
        return {};
    return field->text();
}

QString openFileDialog(const QString &title, const QString &folder, const QString &filter)
{
    QFileDialog dialogue(owner(), title, folder, filter);
    dressFileDialog(dialogue, QStringLiteral("Abrir"));
    dialogue.setFileMode(QFileDialog::ExistingFile);
    return chosen(dialogue);
}

QString saveFileDialog(const QString &title, const QString &file, const QString &filter)
{
    const QFileInfo proposal(file);
    QFileDialog dialogue(owner(), title, proposal.isDir() ? file : proposal.path(), filter);
    dressFileDialog(dialogue, QStringLiteral("Guardar"));
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setDefaultSuffix(defaultSuffix(filter));
    if (!proposal.isDir())
        dialogue.selectFile(proposal.fileName());
    return chosen(dialogue);
}

QString folderDialog(const QString &title, const QString &folder)
{
    QFileDialog dialogue(owner(), title, folder);
    dressFileDialog(dialogue, QStringLiteral("Aceptar"));
    dialogue.setFileMode(QFileDialog::Directory);
    dialogue.setOption(QFileDialog::ShowDirsOnly);
    return chosen(dialogue);
}

std::optional<QColor> colourDialog(const QString &title, const QColor &initial)
{
    QColorDialog dialogue(initial, owner());
    dialogue.setWindowTitle(title);
    dialogue.setOption(QColorDialog::DontUseNativeDialog);
    markAsBox(dialogue, {});
    if (auto *buttons = dialogue.findChild<QDialogButtonBox *>()) {
        buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Aceptar"));
        buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
    }
    if (dialogue.exec() != QDialog::Accepted)
        return {};
    return dialogue.currentColor();
}

std::optional<Box> describeBox(const QWidget *window)
{
    if (const auto *message = qobject_cast<const QMessageBox *>(window))
        return Box{message->windowTitle(), message->text()};
    const QVariant text = window ? window->property(boxTextProperty) : QVariant();
    if (!text.isValid())
        return {};
    return Box{window->windowTitle(), text.toString()};
}

void markAsBox(QWidget &dialogue, const QString &text)
{
    dialogue.setProperty(boxTextProperty, text.isNull() ? QStringLiteral("") : text);
}

void showUnhandled(const std::exception &error)
{
    const auto *known = dynamic_cast<const basic::Error *>(&error);
    showUnhandled(
        known ? known->description()
              : QStringLiteral("Error interno del programa: %1").arg(QString::fromUtf8(error.what())));
}

void showUnhandled(const QString &description)
{
    msgBox(description, Icon::Critical, QStringLiteral("Error"));
}

} // namespace forms
