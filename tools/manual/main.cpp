// Makes the user's manual and the help from the same chapters: manual-maker CHAPTERS LOGO FOLDER
#include "book.h"
#include "pages.h"

#include <QGuiApplication>

#include <cstdio>
#include <stdexcept>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() != 4) {
        std::fputs("usage: manual-maker CHAPTERS LOGO FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::vector<Chapter> chapters = readChapters(QDir(words[1]));
        const QDir folder(words[3]);
        writeHelp(chapters, QDir(folder.filePath("ayuda")));
        writeBook(chapters, words[2], folder.filePath("manual.pdf"));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "manual-maker: %s\n", error.what());
        return 1;
    }
    return 0;
}
