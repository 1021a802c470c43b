#include "platform/portal/Clipboard.h"

#include "platform/image/PhotoFormats.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QList>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace pelmira {
namespace {

const auto pngType = QStringLiteral("image/png");

/// The first file among the addresses.
QString localFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const auto found = std::find_if(urls.begin(), urls.end(), [](const QUrl& url) {
        return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
    });
    return found == urls.end() ? QString() : found->toLocalFile();
}

} // namespace

OfferedImage imageOffered(const QMimeData& data)
{
    // A copied file is the original; what stands beside it may be its icon.
    if (const QString path = localFile(data); !path.isEmpty())
        return path;
    for (const PhotoFormat& format : photoFormats)
        if (data.hasFormat(format.mimeType))
            if (const QByteArray bytes = data.data(format.mimeType); !bytes.isEmpty())
                return bytes;
    if (data.hasImage())
        if (const auto image = data.imageData().value<QImage>(); !image.isNull())
            return image;
    return {};
}

void Clipboard::setPng(const QByteArray& png)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(pngType, png);
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void Clipboard::setText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

OfferedImage Clipboard::image()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data ? imageOffered(*data) : OfferedImage();
}

} // namespace pelmira
