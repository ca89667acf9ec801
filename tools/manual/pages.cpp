#include "pages.h"

#include "text.h"

#include <QSaveFile>

#include <stdexcept>

namespace
{

QString linkTo(const QString &page, const QString &text)
{
    return QStringLiteral("[%1](%2.html)").arg(text, page);
}

void write(const QDir &folder, const QString &page, const QString &markdown)
{
    QTextDocument document;
    dress(document, markdown);
    QSaveFile file(folder.filePath(page + ".html"));
    if (!file.open(QIODevice::WriteOnly) || file.write(document.toHtml().toUtf8()) < 0 || !file.commit())
        throw std::runtime_error("cannot write the page " + page.toStdString());
}

QString indexOf(const std::vector<Chapter> &chapters)
{
    QString text =
        "# Ayuda de Sanirell!\n\nElija un tema. **F1** abre en cada ventana la ayuda que le corresponde.\n\n";
    for (const Chapter &chapter : chapters)
        text += "- " + linkTo(chapter.name, chapter.title) + '\n';
    return text;
}

/// The links that close a chapter: to its neighbours and to the index.
QString neighbours(const std::vector<Chapter> &chapters, std::size_t i)
{
    QStringList links;
    if (i > 0)
        links << "Anterior: " + linkTo(chapters[i - 1].name, chapters[i - 1].title);
    links << linkTo("index", "Índice");
    if (i + 1 < chapters.size())
        links << "Siguiente: " + linkTo(chapters[i + 1].name, chapters[i + 1].title);
    return "\n---\n\n" + links.join(" · ") + '\n';
}

} // namespace

void writeHelp(const std::vector<Chapter> &chapters, const QDir &folder)
{
    if (!folder.mkpath("."))
        throw std::runtime_error("cannot create the folder of the help");
    write(folder, "index", indexOf(chapters));
    for (std::size_t i = 0; i < chapters.size(); ++i) {
        const Chapter &chapter = chapters[i];
        write(folder, chapter.name, chapter.markdown + neighbours(chapters, i));
        const QString more = "\n---\n\nEl capítulo completo: " + linkTo(chapter.name, chapter.title) + " · " +
                             linkTo("index", "Índice") + '\n';
        for (const Section &section : chapter.sections)
            for (const QString &window : section.windows)
                write(folder, window, section.markdown + more);
    }
}
