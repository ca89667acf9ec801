#pragma once

#include <QDir>
#include <QStringList>

#include <vector>

/// A section that a window's F1 opens by itself.
struct Section {
    QStringList windows;
    QString markdown;
};

/// One chapter of the manual: a Markdown file whose name is a number for the order, a dash and its name.
/// A line "<!-- ventana: NAME... -->" before a section tells which windows it explains.
struct Chapter {
    QString name;
    QString title;
    QString markdown;              ///< without the marks of windows
    std::vector<Section> sections; ///< those that explain a window
};

/// In their order. Throws std::runtime_error when there are none, or a window is explained twice.
std::vector<Chapter> readChapters(const QDir &folder);
