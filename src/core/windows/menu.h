#pragma once

#include <QString>

#include <span>

/// The main window's menu tree and toolbar as data: what each item is called, what it asks for and where it
/// leads. A target that is not registered leaves its item disabled.
namespace menu
{

enum class Kind {
    Folder, ///< a submenu; the deeper entries that follow belong to it
    Separator,
    Child,          ///< opens the window as a child, or brings forward the one that is open
    NewChild,       ///< opens another one as a child
    ChildMaximised, ///< as Child
    Modal,          ///< opens the window modally
    Operation,      ///< runs an operation of the registry
    PatientModal,   ///< needs a patient: modal, with the patient's number as its tag
    PatientChild,   ///< needs a patient: a child window
    PatientOperation,
    PatientOrNothing, ///< a child window of the patient, nothing without one
    ModalWithTag,     ///< modal with the active child's tag, whatever it is
    Document,         ///< opens a file below the program's folder
    Web,              ///< opens the address in the setting named by the target
    NotePad,
    Calculator,
    FileExplorer,
    Exit,
    ExitDialogue,
    Cascade,
    Tile,
    HelpKey,
    Nothing, ///< an item without an action bound
};

struct Entry {
    int depth; ///< 0 for the items of the menu bar
    const char *caption;
    const char *item; ///< its name; empty for folders without one
    Kind kind;
    const char *target = "";  ///< window, operation, file or setting
    const char *gate = "";    ///< key asked of VerificaNivel before anything else
    const char *message = ""; ///< shown when a patient is needed and none is open
    const char *windowCaption =
        "";            ///< given to the window; one that ends in a blank is followed by the patient's name
    int keysRight = 0; ///< presses of the right key sent before the operation
    const char *shortcut = "";
};

std::span<const Entry> tree();

struct Button {
    const char *caption;
    const char *icon;
    Kind kind;
    const char *target;
    const char *gate;
};

/// The toolbar's buttons, by index.
std::span<const Button> toolbar();

} // namespace menu
