#include "help/HelpPage.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QGuiApplication application(*argc, *argv); // rich text needs fonts
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const QString page = pelmira::helpPageFromNet(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)));
    if (page.contains(QStringLiteral("<img "), Qt::CaseInsensitive))
        std::abort();
    if (pelmira::positionOfLinkInPage(QStringLiteral("#wand"), page) < -1)
        std::abort();
    return 0;
}
