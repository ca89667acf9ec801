#include "platform/richtext/pictures.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImageReader>
#include <QPixmap>
#include <QTextDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace richtext
{

namespace
{

/// What is drawn is decoded by the toolkit, which then forgets the file: it has a place of its own.
constexpr int fileResource = QTextDocument::UserResource + 1;
constexpr qint64 mostDots = 100'000'000;

QByteArray asPng(const QVariant &resource)
{
    const QImage image = resource.userType() == QMetaType::QByteArray
                             ? QImage::fromData(resource.toByteArray())
                         : resource.userType() == QMetaType::QPixmap ? resource.value<QPixmap>().toImage()
                                                                     : resource.value<QImage>();
    QByteArray file;
    QBuffer buffer(&file);
    if (!image.isNull())
        image.save(&buffer, "PNG");
    return file;
}

} // namespace

bool isPng(const QByteArray &file)
{
    return file.startsWith("\x89PNG\r\n");
}

std::optional<QTextImageFormat> addPicture(QTextDocument &document, const QByteArray &file)
{
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    const bool ofAKindStored = reader.format() == "png" || reader.format() == "jpeg";
    if (!ofAKindStored || size.isEmpty() || qint64(size.width()) * size.height() > mostDots)
        return {};
    const QString name =
        u"imagen:"_s + QString::fromLatin1(QCryptographicHash::hash(file, QCryptographicHash::Sha1).toHex());
    document.addResource(QTextDocument::ImageResource, QUrl(name), file);
    document.addResource(fileResource, QUrl(name), file);
    QTextImageFormat format;
    format.setName(name);
    format.setWidth(size.width());
    format.setHeight(size.height());
    return format;
}

QByteArray pictureFile(const QTextDocument &document, const QString &name)
{
    const QByteArray kept = document.resource(fileResource, QUrl(name)).toByteArray();
    return kept.isEmpty() ? asPng(document.resource(QTextDocument::ImageResource, QUrl(name))) : kept;
}

} // namespace richtext
