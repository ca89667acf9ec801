#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <exception>
#include <optional>

class QWidget;

/// Message boxes, prompts and the common dialogues: real windows that a script answers as a person does.
namespace forms
{

enum class Icon { None, Critical, Question, Exclamation, Information };

void msgBox(const QString &text, Icon icon, const QString &title);
/// What Enter answers: No where a Yes deletes or throws away.
enum class Answer { Yes, No };

/// "Sí" and "No"; true on "Sí".
bool askBox(const QString &text, const QString &title, Answer fallback = Answer::Yes,
            Icon icon = Icon::Question);
/// "Reintentar" and the other caption; true on "Reintentar".
bool retryBox(const QString &text, const QString &title, const QString &otherwise);

/// "Sí", "No" and "Cancelar"; empty when cancelled.
std::optional<bool> askOrCancelBox(const QString &text, const QString &title, Icon icon = Icon::Exclamation);
/// A prompt for one text with "Aceptar" and "Cancelar"; empty when cancelled. No more than `longest`
/// characters can be typed; 0 for those of any column.
std::optional<QString> inputBox(const QString &prompt, const QString &title, const QString &initial = {},
                                int longest = 0);

/// `filter` as "Imágenes (*.jpg *.png)". Empty when cancelled.
QString openFileDialog(const QString &title, const QString &folder, const QString &filter);
QString saveFileDialog(const QString &title, const QString &file, const QString &filter);
QString folderDialog(const QString &title, const QString &folder);
std::optional<QColor> colourDialog(const QString &title, const QColor &initial);

/// What a box asks or tells: a message, a prompt or one of the dialogues above. Null for any other window.
struct Box {
    QString title;
    QString text;
};
std::optional<Box> describeBox(const QWidget *window);
/// Makes a dialogue a box of that text for describeBox().
void markAsBox(QWidget &dialogue, const QString &text);

/// The error that reached nobody: shown in a box, after which the program goes on.
void showUnhandled(const QString &description);
void showUnhandled(const std::exception &error);

} // namespace forms
