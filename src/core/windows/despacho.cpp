#include "core/windows/despacho.h"

#include "core/security/niveles.h"
#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/windows/panSalida.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/settings/settings.h"
#include "platform/shell/shell.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace menu
{

namespace
{

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Presses a key in the window that has the focus.
void sendKey(int key)
{
    QWidget *receiver =
        QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    if (!receiver)
        return;
    QApplication::postEvent(receiver, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    QApplication::postEvent(receiver, new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
}

/// The keys are for the window that an operation opens: they are pressed once it is in front.
void pressInNextWindow(int key, int times)
{
    const auto press = [key, times] {
        const QWidget *window = QApplication::activeModalWidget();
        QWidget *receiver = window ? window->focusWidget() : nullptr;
        for (int i = 0; receiver && i < times; ++i)
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, key, Qt::NoModifier);
                QCoreApplication::sendEvent(receiver, &event);
            }
    };
    QMetaObject::invokeMethod(qApp, press, Qt::QueuedConnection);
}

screens::Window windowOf(const Entry &entry)
{
    return screens::Window::find(text(entry.target)).value();
}

screens::Command commandOf(const Entry &entry)
{
    return screens::Command::find(text(entry.target)).value();
}

QString webAddress(const Entry &entry)
{
    return settings::getSetting(u"Miscelaneas"_s, text(entry.target));
}

/// A caption that ends in a blank takes the patient's name behind it.
QString windowCaption(const Entry &entry, const QString &patient)
{
    const QString caption = text(entry.windowCaption);
    if (!caption.endsWith(u' '))
        return caption;
    return caption +
           MODULE11::BuscaCampo(u"Select * from Pacientes where numero = "_s + patient, u"Apellido y Nombres")
               .text();
}

void openPatientWindow(const Entry &entry, const QString &patient)
{
    const QString caption = windowCaption(entry, patient);
    if (entry.kind != Kind::PatientModal) {
        screens::showChild(windowOf(entry), patient, caption);
        return;
    }
    const auto form = screens::make(windowOf(entry));
    form->setTag(patient);
    if (!caption.isEmpty())
        form->setWindowTitle(caption);
    form->showModal();
}

void choosePatientBound(const Entry &entry)
{
    const QString patient = activePatient();
    if (patient.isEmpty()) {
        if (entry.kind != Kind::PatientOrNothing)
            MODULE11::MuestraError(text(entry.message));
        return;
    }
    if (entry.kind != Kind::PatientOperation) {
        openPatientWindow(entry, patient);
        return;
    }
    pressInNextWindow(Qt::Key_Right, entry.keysRight);
    screens::run(commandOf(entry));
}

void exitAtOnce()
{
    // A window that keeps its unsaved text keeps the program.
    if (MODULE11::Pregunta(u"Sale del sistema"_s) && MODULE11::DescargaVentanas())
        MODULE11::terminar();
}

void openDocument(const Entry &entry)
{
    const QString file = basic::programFile(text(entry.target));
    if (!shell::openDocument(file))
        MODULE11::MuestraError(u"No se puede abrir el documento "_s + file);
}

} // namespace

QString activePatient()
{
    const forms::Form *child = forms::activeChild();
    return child && basic::isNumeric(child->tag()) ? child->tag() : QString();
}

bool available(const Entry &entry)
{
    switch (entry.kind) {
    case Kind::Child:
    case Kind::NewChild:
    case Kind::ChildMaximised:
    case Kind::Modal:
    case Kind::ModalWithTag:
    case Kind::PatientModal:
    case Kind::PatientChild:
    case Kind::PatientOrNothing:
        return screens::has(windowOf(entry));
    case Kind::Operation:
    case Kind::PatientOperation:
        return screens::hasOperation(commandOf(entry));
    case Kind::Document:
        return QFileInfo::exists(basic::programFile(text(entry.target)));
    case Kind::Web:
        return !webAddress(entry).isEmpty();
    case Kind::Nothing:
        return false;
    default:
        return true;
    }
}

void choose(const Entry &entry)
{
    if (*entry.gate && !MODULE11::VerificaNivel(text(entry.gate)))
        return;
    switch (entry.kind) {
    case Kind::Child:
    case Kind::ChildMaximised:
        screens::showSingle(windowOf(entry), entry.kind == Kind::ChildMaximised);
        break;
    case Kind::NewChild:
        screens::showChild(windowOf(entry));
        break;
    case Kind::Modal:
        screens::showModal(windowOf(entry));
        break;
    case Kind::ModalWithTag:
        screens::showModal(windowOf(entry), activePatient());
        break;
    case Kind::Operation:
        screens::run(commandOf(entry));
        break;
    case Kind::PatientModal:
    case Kind::PatientChild:
    case Kind::PatientOrNothing:
    case Kind::PatientOperation:
        choosePatientBound(entry);
        break;
    case Kind::Document:
        openDocument(entry);
        break;
    case Kind::Web:
        shell::openDocument(webAddress(entry));
        break;
    case Kind::NotePad:
        shell::start(shell::Tool::NotePad);
        break;
    case Kind::Calculator:
        shell::start(shell::Tool::Calculator);
        break;
    case Kind::FileExplorer:
        shell::start(shell::Tool::FileExplorer, basic::programFolder());
        break;
    case Kind::Exit:
        exitAtOnce();
        break;
    case Kind::ExitDialogue:
        exitDialogue();
        break;
    case Kind::Cascade:
        forms::cascade();
        break;
    case Kind::Tile:
        forms::tile();
        break;
    case Kind::HelpKey:
        sendKey(Qt::Key_F1);
        break;
    case Kind::Folder:
    case Kind::Separator:
    case Kind::Nothing:
        break;
    }
}

Entry asEntry(const Button &button)
{
    return {0, button.caption, "", button.kind, button.target, button.gate};
}

bool exitDialogue()
{
    panSalida dialogo;
    dialogo.showModal();
    if (dialogo.tag() != u"SI" || !MODULE11::DescargaVentanas())
        return false;
    MODULE11::terminar();
    return true;
}

} // namespace menu
