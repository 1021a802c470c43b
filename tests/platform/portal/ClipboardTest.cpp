#include "platform/portal/Clipboard.h"

#include "support/TemporaryFolder.h"

#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace pelmira {
namespace {

TEST(ClipboardTest, WhatIsOfferedComesInItsBestForm)
{
    const test::TemporaryFolder folder;
    const QString file = folder.write("photo.jpg", "bytes");
    QMimeData data;
    data.setText(QStringLiteral("no image"));
    EXPECT_EQ(imageOffered(data).index(), 0U);

    data.setUrls({QUrl(QStringLiteral("https://example.org/a.png")),
                  QUrl::fromLocalFile(folder.path()), QUrl::fromLocalFile(folder.path("absent"))});
    EXPECT_EQ(imageOffered(data).index(), 0U);

    data.setImageData(QImage(3, 2, QImage::Format_RGB32));
    EXPECT_EQ(std::get<QImage>(imageOffered(data)).size(), QSize(3, 2));

    data.setData(QStringLiteral("image/jpeg"), "jpeg");
    data.setData(QStringLiteral("image/png"), "png");
    EXPECT_EQ(std::get<QByteArray>(imageOffered(data)), "png");

    data.setUrls({QUrl::fromLocalFile(folder.path()), QUrl::fromLocalFile(file)});
    EXPECT_EQ(std::get<QString>(imageOffered(data)), file);
}

TEST(ClipboardTest, APngComesBackByteForByte)
{
    Clipboard::setPng("png");
    EXPECT_EQ(std::get<QByteArray>(Clipboard::image()), "png");
}

} // namespace
} // namespace pelmira
