// assistant TOPICS CAPTURES TARGET: each step of a topic as a picture with its explanation below. A step
// whose window does not exist yet has no capture and is left out, and so are the steps after it.
#include "csv.h"
#include "gif.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <iostream>
#include <set>

using namespace Qt::StringLiterals;

namespace
{

const QSize pictureSize(800, 420);
constexpr int textHeight = 60;

QImage compose(const QImage &capture, const QString &explanation)
{
    QImage page(pictureSize + QSize(0, textHeight), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage fitted = capture.width() > pictureSize.width() || capture.height() > pictureSize.height()
                              ? capture.scaled(pictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              : capture;
    painter.drawImage((pictureSize.width() - fitted.width()) / 2,
                      (pictureSize.height() - fitted.height()) / 2, fitted);
    painter.fillRect(0, pictureSize.height(), page.width(), textHeight, QColor(0xe3, 0xef, 0xf1));
    painter.setFont(QFont(u"DejaVu Sans"_s, 11));
    painter.drawText(QRect(16, pictureSize.height(), page.width() - 32, textHeight),
                     Qt::AlignVCenter | Qt::TextWordWrap, explanation);
    return page;
}

void make(const QString &topics, const QDir &captures, const QString &target)
{
    const CsvTable table = readCsv(topics);
    const qsizetype topic = table.column(u"tema"_s), step = table.column(u"paso"_s),
                    text = table.column(u"explicacion"_s), file = table.column(u"captura"_s);
    QDir().mkpath(target);
    std::set<QString> unfinished;
    for (const QStringList &row : table.rows) {
        const QImage capture(captures.filePath(row[file]));
        if (capture.isNull() || unfinished.count(row[topic])) {
            unfinished.insert(row[topic]);
            continue;
        }
        saveGif(compose(capture, row[text]), u"%1/asist_%2_%3.GIF"_s.arg(target)
                                                 .arg(row[topic].toInt(), 2, 10, QChar(u'0'))
                                                 .arg(row[step].toInt(), 2, 10, QChar(u'0')));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        std::cerr << "assistant TOPICS CAPTURES TARGET\n";
        return 2;
    }
    try {
        make(QString::fromLocal8Bit(argv[1]), QDir(QString::fromLocal8Bit(argv[2])),
             QString::fromLocal8Bit(argv[3]));
        return 0;
    } catch (const std::exception &error) {
        std::cerr << "assistant: " << error.what() << '\n';
        return 1;
    }
}
